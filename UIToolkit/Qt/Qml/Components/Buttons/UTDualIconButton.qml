/*!
    Two icon buttons in one pill, side by side or one above the other, that each do one thing.

    \qml
    UTDualIconButton {
        horizontal: false
        isOverlay: true
        leftIconName: "zoom-in-bold"; leftAccessibleName: "Zoom in"
        rightIconName: "zoom-out-bold"; rightAccessibleName: "Zoom out"
        onLeftClicked: view.zoomIn()
        onRightClicked: view.zoomOut()
    }
    \endqml
*/
import QtQuick

PillPair {
    id: control

    //! The look for buttons on top of a video or a picture.
    property bool isOverlay
    //! Side by side; otherwise the left button lies above the right one.
    property bool horizontal: true
    property bool isSmallSize
    //! Icon names.
    property string leftIconName
    property string rightIconName
    //! The names are the tool tips too.
    property string leftAccessibleName
    property string rightAccessibleName

    signal leftClicked()
    signal rightClicked()

    isOnPicture: isOverlay
    isHorizontal: horizontal
    thickness: isSmallSize ? 24 : 32

    leftButton.iconName: leftIconName
    leftButton.tooltip: leftAccessibleName
    leftButton.onClicked: leftClicked()
    rightButton.iconName: rightIconName
    rightButton.tooltip: rightAccessibleName
    rightButton.onClicked: rightClicked()
}
