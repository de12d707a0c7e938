import QtQuick

// Screen readers from before announcements speak a notification when it shows. It has to have a size and must not be
// wholly transparent to count as showing.
Item {
    id: notification

    property string spokenText

    width: 1
    height: 1
    opacity: 0.001
    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: notification.spokenText
}
