#pragma once

#include "KColorSet.h"
#include "KPaletteReader.h"
#include "korvuui_export.h"

#include <QByteArray>
#include <QHash>

#include <array>
#include <optional>

/*!
    Every colour set of every theme, looked up by name. Starts as the compiled-in palette, which is
    read from a constant table as names are asked for; setTable() puts another one in its place.
*/
class KORVUUI_EXPORT KPalette
{
public:
    /*!
        The set called \a name in \a theme, or null. The pointer holds until the next call on this
        palette.
    */
    const KColorSet *find(const QByteArray &name, KPaletteTheme theme) const;

    //! All names, sorted byte by byte.
    QList<QByteArray> names() const;

    void setTable(const KPaletteTable &table);
    void setBuiltIn();

private:
    std::optional<KColorSet> look(const QByteArray &name, KPaletteTheme theme) const;

    std::optional<KPaletteTable> m_table;
    mutable std::array<QHash<QByteArray, KColorSet>, KPaletteThemeCount> m_cache;
};
