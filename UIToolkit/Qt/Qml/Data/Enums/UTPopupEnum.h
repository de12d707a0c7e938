#pragma once

#include <QObject>

/*!
 * Sides of a popup. The order differs on purpose from the arrow anchors of pop-overs and tool
 * tips; never exchange the values.
 */
namespace UTPopupEnum {
Q_NAMESPACE

enum Alignment : int { None, Top, Left, Right, Bottom };
Q_ENUM_NS(Alignment)

} // namespace UTPopupEnum
