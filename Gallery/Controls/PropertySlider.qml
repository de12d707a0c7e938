/*! A control for a number. */
import QtQuick
import Gallery

Column {
    id: control

    property string label
    property alias value: slider.value
    property alias from: slider.from
    property alias to: slider.to
    property alias stepSize: slider.stepSize

    width: parent?.width ?? 0

    Item {
        width: parent.width
        height: name.height

        GalleryText {
            id: name

            anchors.left: parent.left
            anchors.right: number.left
            text: control.label
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        GalleryText {
            id: number

            anchors.right: parent.right
            text: Number(slider.value.toFixed(2)).toString()
            textColorSetName: "text-secondary"
            Accessible.ignored: true
        }
    }
    GallerySlider {
        id: slider

        width: parent.width
        name: control.label
        stepSize: 1
    }
}
