/*!
    The icon before the label of a rectangular button and next to the text. It makes room for itself by the label's padding.

    \qml
    RectangleIcon { control: button }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private_Data 1.0

UTSvgResource {
    id: icon

    required property UTRectangleButton control
    readonly property Text label: parent as Text
    readonly property int spacing: 6
    readonly property real room: visible ? width + spacing : 0

    x: {
        const freeRoom = Math.round(Math.max(0, label.width - room - label.contentWidth) / 2);
        return control.mirrored ? label.width - width - freeRoom : freeRoom;
    }
    y: Math.round((label.height - height) / 2)
    width: control.UTRectangleButtonData.iconSize
    height: width
    visible: svgName.length > 0
    asynchronous: false // there at once, also in another colour
    svgName: control.iconName
    svgColor: label.color
    sourceSize: Qt.size(width, height)

    Component.onCompleted: {
        label.leftPadding = Qt.binding(() => control.mirrored ? 0 : room);
        label.rightPadding = Qt.binding(() => control.mirrored ? room : 0);
    }
}
