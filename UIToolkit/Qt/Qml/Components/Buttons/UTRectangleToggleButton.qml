/*!
    A square button with an icon that is on or off, as in the tool bar of an editor.

    \qml
    UTRectangleToggleButton { buttonIcon: "pin-bold"; tooltip: "Pin"; isChecked: message.pinned }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Icon name; empty for none.
    property string buttonIcon
    //! The same as checked.
    property alias isChecked: control.checked

    onFocusRingWanted: settings => Object.assign(settings, { isRectangle: true, cornerRadius: 4, themeType: () => control.themeType })

    implicitWidth: 32
    implicitHeight: 32
    checkable: true

    background: Rectangle {
        radius: 4
        color: ThemeUtils.getColor(control, (ThemeManager.globalTheme,
            App.getColorSet(control.checked ? "button-ghost-active-background" : "button-ghost-background", control.themeType)))
        onColorChanged: Script.needEdge(control, this)
    }
    contentItem: KSvgIcon {
        svgName: control.buttonIcon
        svgColor: ThemeUtils.getColor(control, (ThemeManager.globalTheme,
            App.getColorSet(control.checked ? "button-ghost-active-text" : "button-ghost-text", control.themeType)))
        asynchronous: false // there at once, also in another colour
        sourceSize: Qt.size(16, 16)
        fillMode: Image.Pad
    }
}
