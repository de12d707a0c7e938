/*!
    The badge at the upper corner of a call-control button: a number, a short word or just a dot. Made when first shown.

    \qml
    CallControlBadge { control: chatButton }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private_Data 1.0

KFrame {
    id: badge

    required property UTCallControlButton control
    readonly property bool isDot: control.badgeText.length === 0
    readonly property bool isMirrored: control.leftButton.mirrored
    readonly property real dotSize: 10
    readonly property real rim: 4
    readonly property real usualHeight: 16
    // A large text grows outwards, so that the icon stays to be seen.
    readonly property real overlap: isDot ? -2 : rim + Math.max(0, Math.round((height - usualHeight) / 2))

    x: isMirrored ? -overlap : control.width - width + overlap
    y: isDot ? 0 : -overlap
    z: 1
    width: isDot ? dotSize : Math.max(height, label.implicitWidth + 2 * rim)
    height: isDot ? dotSize : label.implicitHeight + 2
    radius: height / 2
    visible: (control.badgeVisible || !isDot) && control.UTCallControlButtonData.canShowBadge
    themeType: control.themeType
    backgroundColorSetName: "button-accent-fill-background"
    borderColorSetName: "button-accent-fill-border"

    KText {
        id: label

        anchors.centerIn: parent
        leftPadding: 0
        rightPadding: 0
        visible: !badge.isDot
        text: badge.control.badgeText
        font: FontConstants.tagLabelSecondary
        themeType: badge.themeType
        textColorSetName: "button-accent-fill-text"
        textFormat: Text.PlainText
        Accessible.ignored: true // the button's description
    }
}
