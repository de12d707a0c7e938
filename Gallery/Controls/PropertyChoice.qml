/*! A control for a property with a few values. */
import QtQuick
import Gallery

Column {
    id: control

    property string label
    property alias options: segments.texts
    property alias currentIndex: segments.currentIndex
    readonly property alias value: segments.currentText

    width: parent?.width ?? 0
    spacing: Metrics.tiny

    GalleryText {
        width: parent.width
        text: control.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    Segments {
        id: segments

        anchors.left: parent.left
        width: Math.min(parent.width, implicitWidth)
        name: control.label
    }
}
