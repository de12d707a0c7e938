/*!
    The label of half a pill button, made with its first text. It is cut short where the half is too narrow for it.

    \qml
    PillHalfLabel { half: control }
    \endqml
*/
import QtQuick

Text {
    id: label

    required property PillHalf half
    readonly property real iconsRoom: half.iconRoom + half.secondIconRoom
    readonly property real start: half.start + iconsRoom + spacing
    readonly property real spacing: iconsRoom > 0 ? half.labelSpacing : 0
    readonly property real naturalWidth: half.fixedLabelWidth > 0 ? half.fixedLabelWidth : Math.ceil(implicitWidth)

    x: half.mirrored ? half.width - start - width : start
    width: Math.max(0, Math.min(naturalWidth, half.width - start - half.endPadding))
    height: half.height
    text: half.text
    font: half.font
    color: half.contentColor
    elide: Text.ElideRight
    horizontalAlignment: half.fixedLabelWidth > 0 ? Text.AlignHCenter : Text.AlignLeft
    verticalAlignment: Text.AlignVCenter

    onTruncatedChanged: half.isTextEilded = truncated
    onImplicitHeightChanged: half.labelHeight = implicitHeight
    Component.onCompleted: {
        half.labelHeight = implicitHeight;
        half.isTextEilded = truncated;
        half.labelRoom = Qt.binding(() => text.length > 0 ? spacing + naturalWidth : 0);
    }
}
