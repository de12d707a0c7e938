#pragma once

#include "AppThemeType.h"
#include "KColorSet.h"
#include "korvuui_export.h"

class QByteArray;
class QString;

//! Theme look-ups for native code. GUI thread only.
class KORVUUI_EXPORT KThemeUtils
{
public:
    KThemeUtils() = delete;

    /*!
        The colour set called \a name (UTF-8) in the palette of \a themeType. An unknown name gives a
        set that carries the name but no colours, so an invalid one; an empty name gives a default
        set. The logging category "korvu.colorsets" warns of each unknown name once; it is off.
    */
    static KColorSet getColorSet(const QByteArray &name, AppThemeType themeType);

    /*!
        Theme type of "global", "light", "dark" or "highContrast". The empty string is Global; any
        other text is Global too and is warned about once.
    */
    static AppThemeType stringToThemeType(const QString &themeType);

    //! True while the application shows its high-contrast theme.
    static bool isHighContrastEnabled();
};
