#pragma once

#include <QObject>

/*! The heights of the general buttons, largest first. */
namespace UTButtonSize {
Q_NAMESPACE

enum Size : int { None, XL, L, M, S, XS, XXS, XXXS };
Q_ENUM_NS(Size)

} // namespace UTButtonSize
