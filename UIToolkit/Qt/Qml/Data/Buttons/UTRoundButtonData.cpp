#include "UTRoundButtonData.h"

#include <array>

namespace {

struct Metrics
{
    int diameter;
    int iconSize;
};

// By UTButtonSize::Size, from XL on.
constexpr std::array<Metrics, 7> sizeTable = {{
    /* XL */ {64, 32},
    /* L */ {52, 28},
    /* M */ {40, 20},
    /* S */ {32, 16},
    /* XS */ {28, 16},
    /* XXS */ {24, 16},
    /* XXXS */ {16, 8},
}};

} // namespace

void UTRoundButtonData::updateSize()
{
    const size_t row = size_t(size()) - UTButtonSize::XL;
    const bool isKnown = row < sizeTable.size();
    // Without a size the icon goes and the button stays.
    const Metrics metrics = isKnown ? sizeTable[row] : Metrics{height(), 0};
    setHeight(metrics.diameter);
    setWidth(isKnown ? metrics.diameter : width());
    setIconSize(QSize(metrics.iconSize, metrics.iconSize));
    setRadius(height() / 2);
}
