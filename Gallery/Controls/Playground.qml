/*! A large stage for the one example that the page's controls change. */
import QtQuick
import Gallery

Card {
    id: control

    default property alias example: example.data
    property real stageHeight: 200
    readonly property real stageWidth: width - 2 * Metrics.huge

    width: parent?.width ?? 0
    implicitHeight: Math.max(stageHeight, example.height + 2 * Metrics.huge)
    height: implicitHeight

    Item {
        id: example

        anchors.centerIn: parent
        width: childrenRect.width
        height: childrenRect.height
    }
}
