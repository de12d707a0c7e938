/*! A colour on a checkerboard, so that what shines through is seen. */
import QtQuick
import UIToolkitQml 1.0
import Gallery

Item {
    id: control

    property color color
    property real radius: Metrics.smallRadius

    readonly property int squareSize: 6

    implicitWidth: 56
    implicitHeight: 32

    CheckerBoard {
        anchors.fill: parent
        radius: control.radius
        squareSize: control.squareSize
        visible: control.color.a < 1
    }
    Rectangle {
        anchors.fill: parent
        radius: control.radius
        color: control.color
    }
    KFrame {
        anchors.fill: parent
        radius: control.radius
        backgroundColorSetName: "transparent"
    }
}
