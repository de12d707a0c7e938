/*!
    A plain button with round ends and an icon, before its label if it has one.

    \qml
    DSvgIconButton { iconName: "plus-bold"; iconWidth: 16; iconHeight: 16; tooltip: "Add people" }
    \endqml
*/
import QtQuick
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

DPillButton {
    id: control

    //! Icon name; empty for none.
    property string iconName
    property string iconColorSetName: "buttonText-secondary"
    //! In pixels.
    property real iconHeight: 12
    property real iconWidth: 12

    implicitHeight: Math.max(implicitContentHeight, iconHeight) + topPadding + bottomPadding
    horizontalPadding: 8
    implicitWidth: Math.max(implicitHeight, implicitContentWidth + leftPadding + rightPadding)

    contentItem: ButtonLabel {
        control: control
        leftPadding: control.mirrored ? 0 : icon.room
        rightPadding: control.mirrored ? icon.room : 0

        ButtonIcon {
            id: icon

            control: control
            iconName: control.iconName
            color: Script.plainColorOf(control, control.iconColorSetName)
            width: control.iconWidth
            height: control.iconHeight
        }
    }
}
