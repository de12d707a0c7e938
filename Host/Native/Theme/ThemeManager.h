#pragma once

#include "AppThemeType.h"
#include "KPalette.h"
#include "korvuui_export.h"

#include <QObject>
#include <QString>
#include <QStringList>

/*!
    The application's theme and palette. Every colour of the interface depends on the notification
    of globalTheme: it is sent whenever a colour set may resolve to other colours, so also when a
    palette was loaded while the theme stayed the same.
*/
class KORVUUI_EXPORT ThemeManager : public QObject
{
    Q_OBJECT
    //! Name of the theme shown: "light", "dark" or "highContrast".
    Q_PROPERTY(QString globalTheme READ theme NOTIFY globalThemeChanged FINAL)
    //! The same, to be set. An unknown name is warned about and changes nothing. Setting it ends followSystem.
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY globalThemeChanged FINAL)
    //! True when content lies on dark surfaces, so in the dark and the high-contrast theme.
    Q_PROPERTY(bool isDarkTheme READ isDarkTheme NOTIFY globalThemeChanged FINAL)
    Q_PROPERTY(bool isHighContrastTheme READ isHighContrastTheme NOTIFY globalThemeChanged FINAL)
    //! While true the theme is light or dark as the desktop is. False by default.
    Q_PROPERTY(bool followSystem READ followSystem WRITE setFollowSystem NOTIFY followSystemChanged FINAL)

public:
    //! The one instance. Must not be used before the application object exists or after it is gone.
    static ThemeManager *instance();

    QString theme() const;
    void setTheme(const QString &theme);
    bool isDarkTheme() const { return m_theme != KPaletteTheme::Light; }
    bool isHighContrastTheme() const { return m_theme == KPaletteTheme::HighContrast; }
    bool followSystem() const { return m_followSystem; }
    void setFollowSystem(bool follow);

    /*!
        Lays the palette file \a file (a path, or a file: or qrc: URL) over the built-in palette, in
        place of one loaded before. Each bad entry is warned about and left out. Returns false, with
        the palette unchanged, when the file as a whole cannot be used.
    */
    Q_INVOKABLE bool loadPalette(const QString &file);
    //! Goes back to the built-in palette.
    Q_INVOKABLE void resetPalette();
    //! Names of all colour sets, sorted byte by byte.
    Q_INVOKABLE QStringList colorSetNames() const;

    const KPalette &palette() const { return m_palette; }
    //! The palette that \a themeType stands for now.
    KPaletteTheme resolve(AppThemeType themeType) const;

Q_SIGNALS:
    void globalThemeChanged();
    void followSystemChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ThemeManager() = default;
    void applyTheme(KPaletteTheme theme);
    void applySystemTheme();

    KPalette m_palette;
    KPaletteTheme m_theme = KPaletteTheme::Light;
    bool m_paletteLoaded = false;
    bool m_followSystem = false;
};
