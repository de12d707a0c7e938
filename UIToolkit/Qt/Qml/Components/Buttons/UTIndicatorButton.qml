/*!
    A button that is an indicator badge: an error, a warning, a recording, and so on. Its tool tip names it.

    \qml
    UTIndicatorButton { indicatorType: UTIndicatorBadgeEnum.Recording; tooltip: "This call is recorded"; onClicked: recording.show() }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
import "qrc:/qt/qml/UIToolkitQml/IndicatorBadges.js" as IndicatorBadges
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! A value of UTIndicatorBadgeEnum; with -1, the default, None and unknown ones there is no button to be seen.
    property int indicatorType: -1

    onFocusRingWanted: settings => Object.assign(settings, { themeType: () => control.themeType })

    visible: IndicatorBadges.kindOf(indicatorType).icon.length > 0
    implicitWidth: 24
    implicitHeight: 24

    background: Rectangle {
        radius: height / 2
        color: ThemeUtils.getColor(control, (ThemeManager.globalTheme, App.getColorSet("button-ghost-background", control.themeType)))
        onColorChanged: Script.needEdge(control, this)
    }
    contentItem: KSvgIcon {
        readonly property var kind: IndicatorBadges.kindOf(control.indicatorType)

        themeType: control.themeType
        controlsTarget: control
        svgName: kind.icon
        svgColorSetName: kind.colorSet
        asynchronous: false // there at once, also in another colour
        sourceSize: Qt.size(16, 16)
        fillMode: Image.Pad
    }
}
