/*! A control for a yes-or-no property. */
import QtQuick
import Gallery

GallerySwitch {
    id: control

    property string label
    property alias value: control.checked

    width: parent?.width ?? 0
    text: label
}
