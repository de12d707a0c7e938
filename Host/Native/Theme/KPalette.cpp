#include "KPalette.h"

#include "KPaletteData.h"

#include <algorithm>
#include <cstring>

namespace {
KColorSet makeSet(const QByteArray &name, const QRgb *states)
{
    KColorSet::Colors colors;
    for (std::size_t i = 0; i < colors.size(); ++i)
        colors[i] = QColor::fromRgba(states[i]);
    return KColorSet(QString::fromUtf8(name), colors);
}
}

const KColorSet *KPalette::find(const QByteArray &name, KPaletteTheme theme) const
{
    QHash<QByteArray, KColorSet> &cache = m_cache[std::size_t(theme)];
    auto hit = cache.constFind(name);
    if (hit == cache.constEnd()) {
        const std::optional<KColorSet> found = look(name, theme);
        if (!found)
            return nullptr;
        hit = cache.insert(name, *found);
    }
    return &hit.value();
}

std::optional<KColorSet> KPalette::look(const QByteArray &name, KPaletteTheme theme) const
{
    if (m_table) {
        const auto &sets = (*m_table)[std::size_t(theme)];
        const auto found = sets.constFind(name);
        if (found == sets.constEnd())
            return {};
        return makeSet(name, found->data());
    }
    const auto rows = builtInPalette();
    const auto row = std::lower_bound(rows.begin(), rows.end(), name, [](const KPaletteRow &a, const QByteArray &b) {
        return std::strcmp(a.name, b.constData()) < 0;
    });
    if (row == rows.end() || name != row->name)
        return {};
    return makeSet(name, row->colors[std::size_t(theme)]);
}

QList<QByteArray> KPalette::names() const
{
    if (m_table)
        return m_table->front().keys();
    QList<QByteArray> names;
    for (const KPaletteRow &row : builtInPalette())
        names.append(row.name);
    return names;
}

void KPalette::setTable(const KPaletteTable &table)
{
    m_table = table;
    m_cache = {};
}

void KPalette::setBuiltIn()
{
    m_table.reset();
    m_cache = {};
}
