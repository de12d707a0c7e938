/*!
    A gradient rounded at its top-left corner only; another colour set shows behind the curve.

    \qml
    KGradientRectangleRoundCorner { cornerRadius: 24 }
    \endqml
*/
import QtQuick

FocusScope {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var controlsTarget: control
    property alias gradientStartColourSetName: gradient.gradientStartColourSetName
    readonly property alias gradientStartColourSet: gradient.gradientStartColourSet
    property alias gradientEndColourSetName: gradient.gradientEndColourSetName
    readonly property alias gradientEndColourSet: gradient.gradientEndColourSet
    property string gradientPrimary0BackgroundColorSetName: "theme-gradient-primary-0-background"
    readonly property alias gradientPrimary0BackgroundColorSet: backdrop.backgroundColorSet
    property real cornerRadius: 16

    KRectangle {
        id: backdrop

        anchors.fill: parent
        clip: true
        themeType: control.themeType
        controlsTarget: control.controlsTarget
        backgroundColorSetName: control.gradientPrimary0BackgroundColorSetName

        // Larger than the clip by the radius, so that the other three corners fall outside it.
        KGradientRectangle {
            id: gradient

            width: backdrop.width + control.cornerRadius
            height: backdrop.height + control.cornerRadius
            radius: control.cornerRadius
            themeType: control.themeType
            controlsTarget: control.controlsTarget
        }
    }
}
