#pragma once

#include <QObject>

/*!
 * Kind, look, size and state of a call-control button. Unlike the general buttons' vocabulary it
 * has no "None": zero is a value in use.
 */
namespace UTCallControlButtonEnum {
Q_NAMESPACE

enum ButtonType : int { ClosedCaptions, DualArrow, DualIcon, Panel, Round, KorvuAssistant, KorvuAssistantLarge };
Q_ENUM_NS(ButtonType)

enum ButtonStyle : int { Secondary, CommonSecondary, Ghost, Cancel, Join };
Q_ENUM_NS(ButtonStyle)

enum ButtonSize : int { Medium, Small, ExtremeSmall };
Q_ENUM_NS(ButtonSize)

enum ButtonState : int { Inactive, Active };
Q_ENUM_NS(ButtonState)

} // namespace UTCallControlButtonEnum
