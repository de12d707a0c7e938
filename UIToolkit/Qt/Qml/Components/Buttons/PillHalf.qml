/*!
    One of the buttons that share a pill, or the only one in it: an icon, a label beside it, its own tool tip and focus
    ring. For use inside the library only.

    \qml
    PillHalf {
        iconName: "minus-bold"
        tooltip: "Zoom out"
        squareCorners: KBasicFocusItem.RectangularCorner.TopRight | KBasicFocusItem.RectangularCorner.BottomRight
        washColorSetName: "dualbutton-standard-button-background"
        textColorSet: bar.textColorSet
    }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: half

    property var themeType: "global"
    //! Whose state decides the colours.
    property var controlsTarget: half
    property string iconName
    //! In place of iconName while checked; empty for the same.
    property string checkedIconName
    property size iconSize: Qt.size(16, 16)
    //! A second icon, between the first one and the label.
    property string secondIconName
    property size secondIconSize: Qt.size(16, 16)
    //! Pixels before the icon, between icons and label, and after the last of them.
    property real startPadding
    property real labelSpacing
    property real endPadding
    //! The label's room in pixels when it shall not follow its text; 0 to follow it.
    property real fixedLabelWidth
    //! Name for assistive technology in place of label and tool tip.
    property string accessibleName
    property string accessibleDescription
    //! Where it joins the other half: corners of KBasicFocusItem.RectangularCorner, as they lie from left to right.
    property int squareCorners: KBasicFocusItem.RectangularCorner.None
    //! What the half is washed with while it is hovered, pressed or checked; empty for nothing.
    property string washColorSetName
    property kColorSet textColorSet

    readonly property color contentColor: ThemeUtils.getColor(controlsTarget, textColorSet)
    readonly property bool isLit: washColorSetName.length > 0
        && (controlsTarget.hovered || controlsTarget.pressed || controlsTarget.checked)
    //! The label, once there has been a text.
    property Text label: null
    readonly property real iconRoom: iconName.length > 0 || !label ? iconSize.width : 0
    // Where icon and label begin, from the side where reading begins.
    readonly property real start: startPadding + Math.max(0, Math.round((width - naturalWidth) / 2))
    property real secondIconRoom
    property real labelRoom
    property real labelHeight
    // Of its own, because to ask a control for its implicit width changes it.
    readonly property real naturalWidth: startPadding + iconRoom + secondIconRoom + labelRoom + endPadding

    onFocusRingWanted: settings => Object.assign(settings, {
        rectangularCornerMask: () => half.squareCorners,
        customRect: () => Script.ringOfHalf(half),
        themeType: () => half.themeType
    })

    implicitWidth: naturalWidth

    // Most halves have one icon only, and shall not pay for more.
    onTextChanged: label = Script.needPart(half, "label", "PillHalfLabel", { half: half }, half)
    onSecondIconNameChanged: {
        const spacing = () => half.iconRoom > 0 ? half.labelSpacing : 0;
        secondIconRoom = Qt.binding(() => half.secondIconName.length > 0 ? spacing() + half.secondIconSize.width : 0);
        Script.needPart(half, "secondIcon", "UTSvgResource", {
            x: () => {
                const start = half.start + half.iconRoom + spacing();
                return half.mirrored ? half.width - start - half.secondIconSize.width : start;
            },
            y: () => Math.round((half.height - half.secondIconSize.height) / 2),
            width: () => half.secondIconSize.width,
            height: () => half.secondIconSize.height,
            visible: () => half.secondIconName.length > 0,
            asynchronous: false,
            sourceSize: () => half.secondIconSize,
            svgName: () => half.secondIconName,
            svgColor: () => half.contentColor
        }, half);
    }
    onIsLitChanged: {
        Script.needPart(half, "wash", "PillHalfWash", {
            half: half,
            corners: () => half.squareCorners,
            isShown: () => half.isLit,
            themeType: () => half.themeType,
            controlsTarget: () => half.controlsTarget,
            backgroundColorSetName: () => half.washColorSetName
        }, half);
    }

    UTSvgResource {
        x: half.mirrored ? half.width - half.start - width : half.start
        y: Math.round((half.height - height) / 2)
        width: half.iconSize.width
        height: half.iconSize.height
        asynchronous: false // there at once, also in another colour
        sourceSize: half.iconSize
        svgName: half.controlsTarget.checked && half.checkedIconName.length > 0 ? half.checkedIconName : half.iconName
        svgColor: half.contentColor
    }

    // After the base, for which the tool tip is the name.
    onTooltipChanged: accessibleNameChanged()
    onAccessibleNameChanged: {
        if (accessibleName.length > 0)
            Accessible.name = Qt.binding(() => half.accessibleName || half.text || half.tooltip);
    }
    onAccessibleDescriptionChanged: Accessible.description = accessibleDescription
}
