/*! A control for a text, a colour set's or an icon's name. */
import QtQuick
import Gallery

Column {
    id: control

    property string label
    property alias value: field.text
    property alias prompt: field.prompt

    width: parent?.width ?? 0
    spacing: Metrics.tiny

    GalleryText {
        width: parent.width
        text: control.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    GalleryTextField {
        id: field

        width: parent.width
        name: control.label
    }
}
