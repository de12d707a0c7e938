/*!
    A small square button with an icon for tool bars and toolbars on rows; for use inside the library only.

    \qml
    UTToolButton { iconName: "copy-bold"; tooltip: "Copy"; onClicked: message.copy() }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Icon name; empty for none.
    property string iconName
    //! Shows the button as hovered, as while what it opened is open.
    property bool hoverOverride: false
    //! Width and colour of the outline, for a button that needs one on its ground; none by default.
    property alias focusOutline: ground.border
    //! Whether the button itself hosts its focus ring, where it would be lost above its surroundings.
    property bool isDesignatedParent: false

    function focusRingSettings(): var {
        return {
            isRectangle: true,
            cornerRadius: ground.radius,
            designatedParent: () => control.isDesignatedParent ? control : undefined,
            themeType: () => control.themeType
        };
    }

    //! The colour of the set \a name for the state of the button.
    function stateColor(name: string): color {
        const colorSet = App.getColorSet(name, themeType);
        return hoverOverride && enabled && !pressed && colorSet.isValid ? colorSet.hovered : ThemeUtils.getColor(control, colorSet);
    }

    implicitWidth: 28
    implicitHeight: 28

    background: Rectangle {
        id: ground

        radius: 4
        color: (ThemeManager.globalTheme, control.stateColor(control.checked ? "button-ghost-active-background" : "button-ghost-background"))
        border.width: 0
    }
    contentItem: KSvgIcon {
        svgName: control.iconName
        svgColor: (ThemeManager.globalTheme, control.stateColor(control.checked ? "button-ghost-active-text" : "button-ghost-text"))
        sourceSize: Qt.size(16, 16)
        fillMode: Image.Pad
    }
}
