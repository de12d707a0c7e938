/*!
    The base of the library's labels; for use inside the library only. A label in a colour set's colour for the state of its
    target.

    \qml
    UTLabelBase { text: "Volume"; controlsTarget: slider; textColorSetName: "label-secondary-text" }
    \endqml
*/
import QtQuick
import QtQuick.Templates as T
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

T.Label {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! The item whose state decides about the colour.
    property var controlsTarget: control
    property string textColorSetName: "label-primary-text"
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(textColorSetName, themeType)

    color: ThemeUtils.getColor(controlsTarget, textColorSet)
    font: FontConstants.bodySecondary
}
