/*!
    A flat shadow behind its parent, which needs no shader effects; it grows with the parent's size.

    \qml
    KRectangle { radius: 8; KDropShadowRect {} }
    \endqml
*/
import QtQuick

Rectangle {
    // Any parent with a radius will do, not only a Rectangle; one without has square corners.
    readonly property var owner: parent
    property real offsetFactor: 0.02
    property real offset: parent ? Math.min(parent.width, parent.height) * offsetFactor : 0

    anchors {
        left: parent ? parent.left : undefined
        top: parent ? parent.top : undefined
        leftMargin: offset
        topMargin: offset
    }
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    radius: 2 + (owner && owner.radius || 0)
    z: parent ? parent.z - 1 : 0
    color: "black"
    opacity: 0.1
}
