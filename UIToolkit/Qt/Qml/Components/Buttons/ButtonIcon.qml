/*!
    The icon of a plain button, before the label's text or alone in the middle. It makes room for itself by the label's
    padding.

    \qml
    ButtonIcon { control: button; iconName: "plus-bold"; color: "red"; width: 12; height: 12 }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private 1.0

Image {
    id: icon

    required property UTButtonBase control
    property string iconName
    property color color
    //! Shown as it is, in place of the icon, where not empty.
    property url picture
    readonly property Text label: parent as Text
    readonly property bool isMirrored: control.mirrored
    readonly property real room: visible && label.text.length > 0 ? width + spacing : 0
    readonly property real spacing: 6

    function takeRoom(): void {
        label.leftPadding = isMirrored ? 0 : room;
        label.rightPadding = isMirrored ? room : 0;
    }

    x: {
        const rest = label.width - label.contentWidth - room;
        const isCentered = label.text.length === 0 || label.effectiveHorizontalAlignment === Text.AlignHCenter;
        const isAtEnd = label.effectiveHorizontalAlignment === (isMirrored ? Text.AlignLeft : Text.AlignRight);
        const before = label.text.length === 0 ? (label.width - width) / 2 : isCentered ? rest / 2 : isAtEnd ? rest : 0;
        return Math.round(isMirrored ? label.width - width - before : before);
    }
    y: Math.round((label.height - height) / 2)
    visible: source.toString().length > 0
    source: picture.toString().length > 0 ? picture : iconName.length > 0 && color.a > 0 ? "image://svg/" + color + "/" + iconName : ""
    sourceSize: Qt.size(width, height)
    fillMode: Image.PreserveAspectFit
    mipmap: true

    onRoomChanged: takeRoom()
    onIsMirroredChanged: takeRoom()
    Component.onCompleted: takeRoom()
}
