#pragma once

#include <QObject>

/*! The looks of the general buttons. */
namespace UTButtonStyle {
Q_NAMESPACE

enum Style : int {
    None,
    Primary,
    Secondary,
    Ghost,
    Accent,
    AccentGhost,
    CancelGhost,
    MessageGhost,
    Join,
    OutlineJoin,
    Cancel,
    OutlineCancel,
    Message,
    OverLay,
    TeachingPrimary,
    TeachingSecondary,
    DeviceActive,
    DeviceInactive,
    CommonPrimary,
    CommonSecondary,
    CommonGhost,
    CommonGhostInverted,
    Selected,
    Customized,
    SkinTone,
    Clear
};
Q_ENUM_NS(Style)

} // namespace UTButtonStyle
