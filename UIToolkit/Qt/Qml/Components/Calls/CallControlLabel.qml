/*!
    The label of a call-control button's left half, made when first shown. It is cut short where the half is too narrow.

    \qml
    CallControlLabel { control: muteButton; half: muteButton.leftButton }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/CallControl.js" as CallControl
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

Text {
    id: label

    required property UTCallControlButton control
    required property UTButtonBase half
    // Of their own, because to ask a text for its implicit size may change it.
    property real naturalWidth
    property real naturalHeight
    readonly property bool isShown: control.UTCallControlButtonData.showText
    readonly property real iconSide: control.UTCallControlButtonData.leftIconSize.width + control.UTCallControlButtonData.textLeftMargin
    readonly property real start: (half.mirrored ? half.rightPadding : half.leftPadding) + iconSide

    x: half.mirrored ? half.width - start - width : start
    width: Math.max(0, Math.min(naturalWidth, half.width - start - control.UTCallControlButtonData.leftSideRightPadding))
    height: half.height
    visible: isShown
    text: control.text
    font: control.UTCallControlButtonData.font
    color: ThemeUtils.getColor(control.leftState, control.UTCallControlButtonData.textColorSet)
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter

    onImplicitWidthChanged: naturalWidth = Math.ceil(implicitWidth)
    onImplicitHeightChanged: naturalHeight = implicitHeight
    onTruncatedChanged: CallControl.showTooltip(half)
    onIsShownChanged: CallControl.showTooltip(half)
}
