/*!
    Two buttons in one pill with a text in one of them: up to two icons and the text on the one side, an icon on the other.
    It shows whether a half is checked and never changes that by itself.

    \qml
    UTDualButton {
        leftIconName: "minus-bold"; leftAccessibleName: "Zoom out"; text: "100 %"
        rightIconName: "plus-bold"; rightAccessibleName: "Zoom in"
        enableResize: false
        onLeftClicked: view.zoomOut()
        onRightClicked: view.zoomIn()
    }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/PillPairColors.js" as Script

PillPair {
    id: control

    //! The look for buttons on top of a video or a picture.
    property bool isOverlay
    //! Grows and shrinks with its text. Otherwise it keeps the room of a short text, so that one that changes all the time,
    //! a clock for example, moves nothing; a longer text is elided. So is any text in a button that is given less room.
    property bool enableResize: true
    //! Puts the text, and the middle icon before it, into the right half.
    property bool isTextInRight
    property bool isSmallSize
    property bool isLeftChecked
    property bool isRightChecked
    //! Icon sizes in pixels.
    property int leftIconSize: 16
    property int middleIconSize: 16
    property int rightIconSize: 16
    //! Icon names; empty for none.
    property string leftIconName
    property string middleIconName
    property string rightIconName
    property string text
    //! A value of UTButtonStyle: Primary, Secondary, Ghost, Accent, Join, Cancel, Message or OverLay; any other is as
    //! Secondary.
    property int buttonStyle: UTButtonStyle.Secondary
    //! The names are the tool tips too; without one the text is the name.
    property string leftAccessibleName
    property string rightAccessibleName

    readonly property real shortTextRoom: (isSmallSize ? 40 : 56) * App.textScale

    signal leftClicked()
    signal rightClicked()

    isOnPicture: isOverlay
    style: buttonStyle
    thickness: isSmallSize ? 24 : 32

    leftButton.text: isTextInRight ? "" : text
    leftButton.font: isSmallSize ? FontConstants.tagLabelSecondary : FontConstants.bodySecondary
    leftButton.fixedLabelWidth: enableResize || isTextInRight ? 0 : shortTextRoom
    leftButton.iconName: leftIconName
    leftButton.iconSize: Qt.size(leftIconSize, leftIconSize)
    leftButton.secondIconName: isTextInRight ? "" : middleIconName
    leftButton.secondIconSize: Qt.size(middleIconSize, middleIconSize)
    leftButton.checked: isLeftChecked
    leftButton.tooltip: leftAccessibleName
    leftButton.accessibleName: leftAccessibleName
    leftButton.onToggled: {
        Script.keepState(leftButton, () => isLeftChecked);
        leftClicked();
    }
    leftButton.onClicked: {
        if (!leftButton.checkable)
            leftClicked();
    }

    rightButton.text: isTextInRight ? text : ""
    rightButton.font: leftButton.font
    rightButton.fixedLabelWidth: enableResize || !isTextInRight ? 0 : shortTextRoom
    rightButton.iconName: rightIconName
    rightButton.iconSize: Qt.size(rightIconSize, rightIconSize)
    rightButton.secondIconName: isTextInRight ? middleIconName : ""
    rightButton.secondIconSize: Qt.size(middleIconSize, middleIconSize)
    rightButton.checked: isRightChecked
    rightButton.tooltip: rightAccessibleName
    rightButton.accessibleName: rightAccessibleName
    rightButton.onToggled: {
        Script.keepState(rightButton, () => isRightChecked);
        rightClicked();
    }
    rightButton.onClicked: {
        if (!rightButton.checkable)
            rightClicked();
    }

    Accessible.name: text
}
