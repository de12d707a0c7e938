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
    property bool isRight: false
    readonly property Text label: parent as Text
    // On which side it really is.
    readonly property bool isAfter: isRight !== control.mirrored

    function roomFor(iconName: string): real {
        return iconName.length > 0 ? sourceSize.width + control.UTPillButtonData.spacing : 0;
    }

    // Where the row of icons and text begins.
    function rowStart(): real {
        const freeRoom = label.width - label.leftPadding - label.contentWidth - label.rightPadding;
        switch (label.effectiveHorizontalAlignment) {
        case Text.AlignLeft:
            return 0;
        case Text.AlignRight:
            return freeRoom;
        default:
            return Math.round(freeRoom / 2);
        }
    }

    x: {
        const isApart = control.alignment !== undefined && !control.isIconAlignText;
        if (!isAfter)
            return isApart ? 0 : rowStart();
        return isApart ? label.width - width : rowStart() + label.leftPadding + label.contentWidth + label.rightPadding - width;
    }
    y: Math.round((label.height - height) / 2)
    width: sourceSize.width
    height: sourceSize.height
    visible: svgName.length > 0
    svgName: isRight ? control.rightIcon : control.leftIcon
    svgColor: isRight ? control.UTPillButtonData.rightIconColorData.color : control.UTPillButtonData.iconColorData.color
    imagePrefixType: control.iconPrefixType
    sourceSize: control.UTPillButtonData.iconSize

    Component.onCompleted: {
        label.leftPadding = Qt.binding(() => roomFor(control.mirrored ? control.rightIcon : control.leftIcon));
        label.rightPadding = Qt.binding(() => roomFor(control.mirrored ? control.leftIcon : control.rightIcon));
    }
}
