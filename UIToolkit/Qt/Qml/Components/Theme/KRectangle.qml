/*!
    A rectangle painted from a colour set, in the colour that fits the state of its target.

    \qml
    KRectangle { backgroundColorSetName: "listitem-background"; controlsTarget: delegate }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

Rectangle {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var controlsTarget: control
    property string backgroundColorSetName: "background-primary"
    readonly property kColorSet backgroundColorSet: ThemeManager.globalTheme, App.getColorSet(backgroundColorSetName, themeType)

    color: ThemeUtils.getColor(controlsTarget, backgroundColorSet)
}
