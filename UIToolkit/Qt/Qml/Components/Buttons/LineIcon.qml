/*!
    The icon after the label of a multiline pill.

    \qml
    LineIcon { control: pill }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private_Data 1.0

UTSvgResource {
    id: icon

    required property UTMultilinePillButton control
    readonly property real room: visible ? width + control.UTMultilinePillButtonData.spacing : 0

    x: control.mirrored ? 0 : control.availableWidth - width
    y: Math.round((control.availableHeight - height) / 2)
    width: sourceSize.width
    height: width
    visible: svgName.length > 0
    asynchronous: false // there at once, also in another colour
    svgName: control.rightIcon
    svgColor: control.UTMultilinePillButtonData.rightIconColorData.color
    sourceSize: control.UTMultilinePillButtonData.iconSize
}
