/*!
    The badge of a badge button, after the label's text.

    \qml
    ButtonBadge { control: button; badgeText: "3"; maximumTextWidth: 14 }
    \endqml
*/
import QtQuick
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

Rectangle {
    id: badge

    required property KButton control
    property string badgeText
    //! In pixels; a longer text is elided.
    property real maximumTextWidth
    //! Whether there is an icon before it.
    property bool hasIcon
    readonly property Text label: parent as Text
    readonly property int spacing: 6
    readonly property int inset: 4
    //! What the badge takes from the label, in pixels.
    readonly property real room: !visible ? 0 : label.text.length > 0 || hasIcon ? width + spacing : width

    x: {
        const start = Script.labelStart(label, control.mirrored) + Math.ceil(label.contentWidth)
            + (control.mirrored ? label.rightPadding : label.leftPadding) + room - width;
        return control.mirrored ? label.width - width - start : start;
    }
    y: Math.round((label.height - height) / 2)
    width: Math.max(height, number.width + 2 * inset)
    height: Math.max(16, Math.ceil(number.implicitHeight))
    visible: badgeText.length > 0
    radius: height / 2
    color: Script.plainColorOf(control, "button-accent-fill-background")
    border.color: Script.plainColorOf(control, "button-accent-fill-border")

    Text {
        id: number

        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), badge.maximumTextWidth)
        text: badge.badgeText
        textFormat: Text.PlainText
        font: FontConstants.tagLabelSecondary
        color: Script.plainColorOf(badge.control, "button-accent-fill-text")
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
    }
}
