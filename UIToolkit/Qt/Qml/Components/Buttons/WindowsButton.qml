/*!
    A button of a window's title bar; for use inside the library only.

    \qml
    WindowsButton { buttonType: WindowsButton.ButtonType.Close; onClicked: Window.window.close() }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: control

    enum ButtonType {
        Minimize,
        Maximize,
        Restore,
        Close
    }

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property int buttonType: WindowsButton.ButtonType.Minimize

    // By type: icon, what the button does, and the family of its colour sets. An unknown type shows nothing.
    readonly property var look: [
        { icon: "window-minimize-regular", tooltip: qsTr("Minimize"), colors: "globalHeader-maxMinButton" },
        { icon: "window-maximize-regular", tooltip: qsTr("Maximize"), colors: "globalHeader-maxMinButton" },
        { icon: "window-restore-regular", tooltip: qsTr("Restore"), colors: "globalHeader-maxMinButton" },
        { icon: "window-close-regular", tooltip: qsTr("Close"), colors: "globalHeader-closeButton" }
    ][buttonType] ?? { icon: "", tooltip: "", colors: "globalHeader-maxMinButton" }

    function focusRingSettings(): var {
        return { isRectangle: true, cornerRadius: 0, innerFocusBorder: true, themeType: () => control.themeType };
    }

    implicitWidth: 46
    implicitHeight: 32
    tooltip: look.tooltip

    background: Rectangle {
        color: ThemeUtils.getColor(control, (ThemeManager.globalTheme, App.getColorSet(control.look.colors + "-background", control.themeType)))
    }
    contentItem: KSvgIcon {
        svgName: control.look.icon
        svgColor: ThemeUtils.getColor(control, (ThemeManager.globalTheme, App.getColorSet(control.look.colors + "-text", control.themeType)))
        sourceSize: Qt.size(12, 12)
        fillMode: Image.Pad
    }
}
