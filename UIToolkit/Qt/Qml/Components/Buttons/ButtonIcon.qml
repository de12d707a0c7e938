/*!
    The icon of a plain button, before the label's text or alone in the middle.

    \qml
    ButtonIcon { control: button; iconName: "plus-bold"; color: "red"; width: 12; height: 12 }
    \endqml
*/
import QtQuick
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

Image {
    id: icon

    required property KButton control
    property string iconName
    property color color
    //! Shown as it is, in place of the icon, where not empty.
    property url picture
    readonly property Text label: parent as Text
    readonly property int spacing: 6
    //! What the icon takes from the label, in pixels.
    readonly property real room: !visible ? 0 : label.text.length > 0 ? width + spacing : width

    x: {
        const start = Script.labelStart(label, control.mirrored);
        return control.mirrored ? label.width - width - start : start;
    }
    y: Math.round((label.height - height) / 2)
    visible: source.toString().length > 0
    source: picture.toString().length > 0 ? picture : iconName.length > 0 && color.a > 0 ? `image://svg/${color}/${iconName}` : ""
    sourceSize: Qt.size(width, height)
    fillMode: Image.PreserveAspectFit
    mipmap: true
}
