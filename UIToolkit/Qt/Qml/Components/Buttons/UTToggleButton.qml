/*!
    Two icon buttons in one pill that are each on or off, like microphone and camera before a call, or of which exactly one
    is on, like two views of the same list.

    \qml
    UTToggleButton {
        leftIcon: "microphone-bold"; leftCheckedIcon: "microphone-muted-bold"; leftAccessibleName: "Mute"
        rightIcon: "video-bold"; rightCheckedIcon: "video-muted-bold"; rightAccessibleName: "Stop video"
        leftButton.onToggled: call.muted = leftButton.checked
    }
    \endqml
*/
import QtQuick

PillPair {
    id: control

    //! Icon names. The checked one takes the place of the other while the half is checked; empty for the same.
    property string leftIcon
    property string rightIcon
    property string leftCheckedIcon
    property string rightCheckedIcon
    //! The names are the tool tips too, unless a half is given its own.
    property string leftAccessibleName
    property string rightAccessibleName
    property string leftAccessibleDescription
    property string rightAccessibleDescription
    //! Lets one half be checked at a time, and leaves it checked when it is pressed again.
    property bool isExclusive
    property bool isOverlay
    property bool isSmallSize

    isOnPicture: isOverlay
    thickness: isSmallSize ? 24 : 32

    leftButton.checkable: true
    leftButton.autoExclusive: isExclusive
    leftButton.isInExclusiveGroup: isExclusive
    leftButton.announceStateChange: true
    leftButton.iconName: leftIcon
    leftButton.checkedIconName: leftCheckedIcon
    leftButton.tooltip: leftAccessibleName
    leftButton.accessibleName: leftAccessibleName
    leftButton.accessibleDescription: leftAccessibleDescription
    rightButton.checkable: true
    rightButton.autoExclusive: isExclusive
    rightButton.isInExclusiveGroup: isExclusive
    rightButton.announceStateChange: true
    rightButton.iconName: rightIcon
    rightButton.checkedIconName: rightCheckedIcon
    rightButton.tooltip: rightAccessibleName
    rightButton.accessibleName: rightAccessibleName
    rightButton.accessibleDescription: rightAccessibleDescription
}
