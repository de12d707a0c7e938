#pragma once

#include <QObject>

/*! Size of a pop-over, and where its arrow sits. */
namespace UTPopOverEnum {
Q_NAMESPACE

enum Size : int { Small, Medium };
Q_ENUM_NS(Size)

enum ArrowAnchor : int { None, Top, Bottom, Left, Right };
Q_ENUM_NS(ArrowAnchor)

enum ArrowAlignment : int { LeftAlignment, CenterAlignment, RightAlignment, TopAlignment, BottomAlignment };
Q_ENUM_NS(ArrowAlignment)

} // namespace UTPopOverEnum
