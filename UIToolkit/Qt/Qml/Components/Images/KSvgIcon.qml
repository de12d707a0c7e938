/*!
    An icon in one colour: that of a colour set for the state of its target, or a fixed one.

    \qml
    KSvgIcon { svgName: "settings-regular"; svgColorSetName: "text-primary"; height: 16 }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

KSvgImage {
    property string svgColorSetName
    readonly property kColorSet svgColorSet: ThemeManager.globalTheme, App.getColorSet(svgColorSetName, themeType)
    //! The colour while no colour set is named.
    property color svgColor: "black"
    readonly property color sourceColor: svgColorSetName.length > 0 ? ThemeUtils.getColor(controlsTarget, svgColorSet) : svgColor

    height: 12
    source: svgName.length > 0 ? `image://svg/${sourceColor}/${svgName}` : ""
}
