/*!
    A rectangle with a gradient between two colour sets.

    \qml
    KGradientRectangle { radius: 8; gradientOrientation: Gradient.Horizontal }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

FocusScope {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var controlsTarget: control
    property string gradientStartColourSetName: "theme-gradient-secondary-0-background"
    readonly property kColorSet gradientStartColourSet: ThemeManager.globalTheme, App.getColorSet(gradientStartColourSetName, themeType)
    property string gradientEndColourSetName: "theme-gradient-secondary-1-background"
    readonly property kColorSet gradientEndColourSet: ThemeManager.globalTheme, App.getColorSet(gradientEndColourSetName, themeType)
    property real radius
    property int gradientOrientation: Gradient.Vertical

    Rectangle {
        anchors.fill: parent
        radius: control.radius
        gradient: Gradient {
            orientation: control.gradientOrientation

            GradientStop {
                position: 0
                color: ThemeUtils.getColor(control.controlsTarget, control.gradientStartColourSet)
            }
            GradientStop {
                position: 1
                color: ThemeUtils.getColor(control.controlsTarget, control.gradientEndColourSet)
            }
        }
    }
}
