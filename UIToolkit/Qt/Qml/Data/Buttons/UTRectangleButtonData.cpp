#include "UTRectangleButtonData.h"

#include "ComponentName.h"

#include <App.h>
#include <KFont.h>

#include <array>

namespace {

struct Metrics
{
    int leftPadding;
    int topPadding;
    int iconSize;
    int preferredHeight;
    KFont::Token font;
};

constexpr Metrics medium = {12, 4, 20, 32, KFont::BodyPrimarySemibold};
constexpr Metrics small = {10, 4, 16, 28, KFont::BodySecondarySemibold};

// By UTButtonSize::Size, from XL on.
constexpr std::array<Metrics, 7> sizeTable = {{
    /* XL */ {16, 8, 20, 40, KFont::BodyPrimarySemibold},
    /* L */ medium,
    /* M */ medium,
    /* S */ small,
    /* XS */ small,
    /* XXS */ small,
    /* XXXS */ small,
}};

} // namespace

UTRectangleButtonData::UTRectangleButtonData(QObject *attachee)
    : KObject(attachee)
{
    if (!ComponentName::check(attachee, "UTRectangleButton"))
        return;
    connect(this, &UTRectangleButtonData::sizeChanged, this, &UTRectangleButtonData::refresh);
    connect(App::instance(), &App::textScaleChanged, this, &UTRectangleButtonData::refresh);
}

void UTRectangleButtonData::refresh()
{
    const size_t row = size_t(m_size) - UTButtonSize::XL;
    if (row >= sizeTable.size())
        return;
    const Metrics &metrics = sizeTable[row];
    set(m_leftPadding, metrics.leftPadding, &UTRectangleButtonData::leftPaddingChanged);
    set(m_topPadding, metrics.topPadding, &UTRectangleButtonData::topPaddingChanged);
    set(m_iconSize, metrics.iconSize, &UTRectangleButtonData::iconSizeChanged);
    set(m_preferredHeight, metrics.preferredHeight, &UTRectangleButtonData::preferredHeightChanged);
    set<UTRectangleButtonData, QFont>(m_font, KFont(metrics.font), &UTRectangleButtonData::fontChanged);
}
