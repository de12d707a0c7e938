/*!
    The framed name of a line in a multiline pill.

    \qml
    LineDesignator { control: pill }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private_Data 1.0

Rectangle {
    id: frame

    required property UTMultilinePillButton control
    readonly property kColorSet colorSet: ThemeManager.globalTheme, App.getColorSet(control.lineDesignatorColorName, control.themeType)
    readonly property color lineColor: control.shouldUseSingleTextColor ? control.textPrimaryNormal : colorSet.normal
    readonly property int padding: control.UTMultilinePillButtonData.lineDesignatorPadding
    readonly property int thickness: control.UTMultilinePillButtonData.lineDesignatorBorderThickness
    readonly property real disabledOpacity: 0.3
    readonly property real room: visible ? width + control.UTMultilinePillButtonData.spacing : 0

    x: control.mirrored ? control.availableWidth - width : 0
    y: Math.round((control.availableHeight - height) / 2)
    // As high as its round ends, and a circle at least, so that a single digit sits in the middle of one.
    width: Math.max(height, Math.ceil(name.implicitWidth) + 2 * padding)
    height: Math.max(2 * control.UTMultilinePillButtonData.lineDesignatorBorderRadius, Math.ceil(name.implicitHeight) + 2 * thickness)
    visible: control.shouldDisplayLineDesignator
    radius: height / 2
    color: "transparent"
    opacity: control.multiLineEnabled ? 1 : disabledOpacity
    border.width: thickness
    border.color: lineColor

    Text {
        id: name

        anchors.fill: parent
        text: frame.control.lineDesignatorText
        textFormat: Text.PlainText
        font: FontConstants.tagLabelTertiary
        color: frame.lineColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
