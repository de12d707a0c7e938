/*!
    A plain button with round ends and the icon that its \c icon names: by \c name an icon of the host, by \c source a
    picture. Its text is its tool tip, unless that is set.

    \qml
    DSvgButton { text: "Share"; icon.name: "share-screen-bold" }
    \endqml
*/
import QtQuick
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

KButton {
    id: control

    //! Where icon and label lie, a value of Text's alignments.
    property int alignment: Text.AlignHCenter
    //! In pixels.
    property real iconHeight: 12
    property real iconWidth: 12
    property string iconColorSetName: "buttonText-secondary"
    //! Shows the picture of icon.source in its own colours, instead of the icon of icon.name.
    property bool showSvgIconOriginalColor

    horizontalAlignment: alignment
    radius: height / 2
    implicitHeight: Math.max(implicitContentHeight, iconHeight) + topPadding + bottomPadding
    tooltip: text
    implicitWidth: Math.max(implicitHeight, implicitContentWidth + leftPadding + rightPadding)

    contentItem: ButtonLabel {
        control: control
        leftPadding: control.mirrored ? 0 : icon.room
        rightPadding: control.mirrored ? icon.room : 0

        ButtonIcon {
            id: icon

            control: control
            iconName: control.icon.name
            picture: control.showSvgIconOriginalColor || control.icon.name.length === 0 ? control.icon.source : ""
            color: Script.plainColorOf(control, control.iconColorSetName)
            width: control.iconWidth
            height: control.iconHeight
        }
    }
}
