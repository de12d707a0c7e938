/*!
    The label of a plain button.

    \qml
    ButtonLabel { control: button }
    \endqml
*/
import QtQuick
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

Text {
    required property var control // a KButton, which as a type would need this one in turn

    text: control.text
    font: control.font
    color: Script.plainColor(control, control.textColorSet)
    elide: Text.ElideRight
    horizontalAlignment: control.horizontalAlignment
    verticalAlignment: control.verticalAlignment
    onTruncatedChanged: control.isTextEilded = truncated || undefined // the tool tip alone while there is room
}
