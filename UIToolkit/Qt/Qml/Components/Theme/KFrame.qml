/*!
    A rectangle with a border. Without a colour set for it the border is not drawn, whatever its width.

    \qml
    KFrame { radius: 8; borderColorSetName: "combobox-border" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

KRectangle {
    id: control

    property real borderWidth: 1
    property string borderColorSetName: "wx-default-border"
    readonly property kColorSet borderColorSet: ThemeManager.globalTheme, App.getColorSet(borderColorSetName, themeType)

    border.width: borderColorSetName.length > 0 ? borderWidth : 0
    border.color: ThemeUtils.getColor(controlsTarget, borderColorSet)
}
