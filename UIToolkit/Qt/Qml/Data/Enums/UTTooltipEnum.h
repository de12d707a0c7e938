#pragma once

#include <QObject>

/*! Look of a tool tip, and where its arrow sits. */
namespace UTTooltipEnum {
Q_NAMESPACE

enum TooltipStyle : int { Native, Customized };
Q_ENUM_NS(TooltipStyle)

enum ArrowAnchor : int { None, Top, Bottom, Left, Right };
Q_ENUM_NS(ArrowAnchor)

enum ArrowAlignment : int { LeftAlignment, CenterAlignment, RightAlignment, TopAlignment, BottomAlignment };
Q_ENUM_NS(ArrowAlignment)

} // namespace UTTooltipEnum
