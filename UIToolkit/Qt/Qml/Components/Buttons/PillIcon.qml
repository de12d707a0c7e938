/*!
    The icon on one side of a pill button's label, made with the first icon name on that side. It makes room for itself by
    the label's padding.

    \qml
    PillIcon { control: pill; isRight: true }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private_Data 1.0

UTSvgResource {
    id: icon

    required property UTPillButton control
    property bool isRight
    readonly property Text label: parent as Text
    // On which side it really is.
    readonly property bool isAfter: isRight !== control.mirrored
    // What an icon takes from the label.
    readonly property real room: width + control.UTPillButtonData.spacing

    // For the icon on the other side as well, which is of the same size.
    function takeRoom(): void {
        // As a window closes, the button may be gone before its parts are hidden.
        if (!control)
            return;
        const before = control.mirrored ? control.rightIcon : control.leftIcon;
        const after = control.mirrored ? control.leftIcon : control.rightIcon;
        label.leftPadding = before.length > 0 ? room : 0;
        label.rightPadding = after.length > 0 ? room : 0;
    }

    x: {
        const isApart = control.alignment !== undefined && !control.isIconAlignText;
        // Less than none where the text is too long.
        let freeRoom = isApart ? 0 : label.width - label.leftPadding - label.contentWidth - label.rightPadding;
        if (label.effectiveHorizontalAlignment === (isAfter ? Text.AlignRight : Text.AlignLeft))
            freeRoom = 0;
        else if (label.effectiveHorizontalAlignment === Text.AlignHCenter)
            freeRoom = Math.round(freeRoom / 2);
        return isAfter ? label.width - width - freeRoom : freeRoom;
    }
    y: Math.round((label.height - height) / 2)
    width: sourceSize.width
    height: width
    visible: svgName.length > 0
    asynchronous: false // there at once, also in another colour
    svgName: isRight ? control.rightIcon : control.leftIcon
    svgColor: isRight ? control.UTPillButtonData.rightIconColorData.color : control.UTPillButtonData.iconColorData.color
    imagePrefixType: control.iconPrefixType
    sourceSize: control.UTPillButtonData.iconSize

    onRoomChanged: takeRoom()
    onVisibleChanged: takeRoom()
    onIsAfterChanged: takeRoom()
}
