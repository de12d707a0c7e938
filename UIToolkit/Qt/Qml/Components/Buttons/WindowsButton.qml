/*!
    A button of a window's title bar; for use inside the library only.

    \qml
    WindowsButton { buttonType: WindowsButton.ButtonType.Close; onClicked: Window.window.close() }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
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
    //! A value of WindowsButton.ButtonType; an unknown one shows nothing.
    property int buttonType: WindowsButton.ButtonType.Minimize

    onFocusRingWanted: settings => Object.assign(settings, { isRectangle: true, cornerRadius: 0, innerFocusBorder: true, themeType: () => control.themeType })

    implicitWidth: 46
    implicitHeight: 32
    tooltip: priv.look.tooltip

    background: Rectangle {
        color: ThemeUtils.getColor(control, (ThemeManager.globalTheme, App.getColorSet(priv.look.colors + "-background", control.themeType)))
        onColorChanged: Script.needEdge(control, this)
    }
    contentItem: KSvgIcon {
        svgName: priv.look.icon
        svgColor: ThemeUtils.getColor(control, (ThemeManager.globalTheme, App.getColorSet(priv.look.colors + "-text", control.themeType)))
        asynchronous: false // there at once, also in another colour
        sourceSize: Qt.size(16, 16)
        fillMode: Image.Pad
    }

    QtObject {
        id: priv

        // By type: icon, what the button does, and the family of its colour sets.
        readonly property var look: [
            { icon: "window-minimize-regular", tooltip: qsTr("Minimize"), colors: "globalHeader-maxMinButton" },
            { icon: "window-maximize-regular", tooltip: qsTr("Maximize"), colors: "globalHeader-maxMinButton" },
            { icon: "window-restore-regular", tooltip: qsTr("Restore"), colors: "globalHeader-maxMinButton" },
            { icon: "window-close-regular", tooltip: qsTr("Close"), colors: "globalHeader-closeButton" }
        ][control.buttonType] ?? { icon: "", tooltip: "", colors: "globalHeader-maxMinButton" }
    }
}
