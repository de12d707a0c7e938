#pragma once

#include <QObject>

/*! The ready-made purposes of an icon button. */
namespace UTButtonType {
Q_NAMESPACE

enum Type : int {
    None,
    Settings,
    Favorite,
    Info,
    Attachment,
    Emoji,
    Link,
    Pen,
    Warning,
    Popout,
    Popin,
    Dismiss,
    Copy,
    OutgoingCall
};
Q_ENUM_NS(Type)

} // namespace UTButtonType
