/*!
    A button with an icon, a text and a badge, each if there is one.

    \qml
    UTBadgeButton { iconName: "chat-bold"; buttonText: "Replies"; badgeText: "3" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

KButton {
    id: control

    //! Icon name; empty for none.
    property string iconName
    property string buttonText
    property string badgeText
    property string iconColorSetName: textColorSetName
    //! In pixels.
    property real iconHeight: 14
    property real iconWidth: 14
    //! Widest that the badge's text may be, in pixels at a text scale of 1; a longer one is elided.
    property real maxTextWidth: 14
    property bool badgeVisible: true

    text: buttonText
    textColorSetName: "button-ghost-text"
    radius: 4
    implicitHeight: Math.max(implicitContentHeight, iconHeight) + topPadding + bottomPadding

    contentItem: ButtonLabel {
        control: control
        leftPadding: control.mirrored ? badge.room : icon.room
        rightPadding: control.mirrored ? icon.room : badge.room

        ButtonIcon {
            id: icon

            control: control
            iconName: control.iconName
            color: Script.plainColorOf(control, control.iconColorSetName)
            width: control.iconWidth
            height: control.iconHeight
        }
        ButtonBadge {
            id: badge

            control: control
            badgeText: control.badgeVisible ? control.badgeText : ""
            maximumTextWidth: Math.round(control.maxTextWidth * App.textScale)
            hasIcon: icon.visible
        }
    }

    Accessible.description: badgeVisible ? badgeText : ""
}
