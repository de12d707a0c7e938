#include "KColorSet.h"

#include "KPaletteReader.h"

#include <QDebug>

#include <algorithm>

namespace {
// Colour sets travel through variants and queued signals before any engine exists.
[[maybe_unused]] const int registered = qRegisterMetaType<KColorSet>("KColorSet");
}

KColorSet::KColorSet(const QString &name, const Colors &colors)
    : m_name(name)
    , m_colors(colors)
{
}

bool KColorSet::isValid() const
{
    return !m_name.isEmpty()
        && std::all_of(m_colors.begin(), m_colors.end(), [](const QColor &color) { return color.isValid(); });
}

QColor KColorSet::color(const QString &state) const
{
    const int index = KPaletteReader::stateIndex(state);
    if (index < 0) {
        qWarning("KColorSet: color state is invalid! %s", qUtf8Printable(state));
        return {};
    }
    return m_colors[std::size_t(index)];
}
