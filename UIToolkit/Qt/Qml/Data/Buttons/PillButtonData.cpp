#include "PillButtonData.h"

#include <KFont.h>

#include <array>

namespace {

struct Metrics
{
    KFont::Token font;
    int height;
    int padding;
    int spacing;
    int iconSize;
};

constexpr Metrics large = {KFont::BodyPrimarySemibold, 32, 12, 6, 16};
constexpr Metrics smallest = {KFont::TagLabelSecondary, 24, 8, 4, 16};

// By UTButtonSize::Size, from XL on.
constexpr std::array<Metrics, 7> sizeTable = {{
    /* XL */ {KFont::BodyPrimarySemibold, 40, 16, 6, 20},
    /* L */ large,
    /* M */ large,
    /* S */ {KFont::BodySecondarySemibold, 28, 10, 4, 16},
    /* XS */ smallest,
    /* XXS */ smallest,
    /* XXXS */ smallest,
}};

} // namespace

PillButtonData::PillButtonData(QObject *attachee, const char *component)
    : IUTButtonData(attachee, component)
{
    connect(this, &PillButtonData::fontChanged, this, &PillButtonData::paintLabel);
}

void PillButtonData::paintLabel()
{
    IUTButtonData::paintLabel();
    if (label())
        label()->setProperty("font", font());
}

void PillButtonData::updateSize()
{
    const size_t row = size_t(size()) - UTButtonSize::XL;
    if (row >= sizeTable.size())
        return;
    const Metrics &metrics = sizeTable[row];
    setFont(KFont(metrics.font));
    setHeight(metrics.height);
    setLeftPadding(metrics.padding);
    setRightPadding(metrics.padding);
    setSpacing(metrics.spacing);
    setIconSize(QSize(metrics.iconSize, metrics.iconSize));
    setRadius(height() / 2);
}
