#include "UTMultilinePillButtonData.h"

namespace {

constexpr int designatorRadius = 9;
constexpr int designatorThickness = 1;
constexpr qreal paddingOfRadius = 0.5;

} // namespace

void UTMultilinePillButtonData::updateSize()
{
    if (size() < UTButtonSize::XL || size() > UTButtonSize::XXXS)
        return;
    PillButtonData::updateSize();
    setLineDesignatorBorderRadius(designatorRadius);
    setLineDesignatorBorderThickness(designatorThickness);
    setLineDesignatorPadding(qRound(designatorRadius * paddingOfRadius));
}
