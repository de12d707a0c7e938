#pragma once

#include <QObject>

/*! Look and size of a menu. */
namespace UTMenuEnum {
Q_NAMESPACE

enum Style : int { Normal, Circular };
Q_ENUM_NS(Style)

enum Size : int { Small, Medium, Large };
Q_ENUM_NS(Size)

} // namespace UTMenuEnum
