/*!
    A small square button with an icon, for tool bars and rows; for use inside the library only.

    \qml
    UTToolButton { iconName: "copy-bold"; tooltip: "Copy"; onClicked: message.copy() }
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
    property string iconName
    //! Shows the button as hovered, as while what it opened is open.
    property bool hoverOverride
    //! The shape of the focus ring, a KBasicFocusItem.
    property alias focusOutline: outline
    //! Whether the button itself hosts its focus ring, as in a row that scrolls, instead of its top-most ancestor.
    property bool isDesignatedParent

    onFocusRingWanted: settings => Object.assign(settings, {
        innerFocusBorder: () => outline.innerFocusBorder,
        isRectangle: () => outline.isRectangle,
        cornerRadius: () => outline.cornerRadius,
        customRect: () => outline.customRect,
        rectangularCornerMask: () => outline.rectangularCornerMask,
        designatedParent: () => outline.designatedParent,
        themeType: () => control.themeType
    })

    //! The colour of the set \a name for the state of the button.
    function stateColor(name: string): color {
        const colorSet = App.getColorSet(name, themeType);
        return hoverOverride && enabled && !pressed && colorSet.isValid ? colorSet.hovered : ThemeUtils.getColor(control, colorSet);
    }

    implicitWidth: 28
    implicitHeight: 28

    background: Rectangle {
        radius: priv.cornerRadius
        color: (ThemeManager.globalTheme, control.stateColor(control.checked ? "button-ghost-active-background" : "button-ghost-background"))
        onColorChanged: Script.needEdge(control, this)
    }
    contentItem: KSvgIcon {
        svgName: control.iconName
        svgColor: (ThemeManager.globalTheme, control.stateColor(control.checked ? "button-ghost-active-text" : "button-ghost-text"))
        asynchronous: false // there at once, also in another colour
        sourceSize: Qt.size(16, 16)
        fillMode: Image.Pad
    }

    KBasicFocusItem {
        id: outline

        isRectangle: true
        cornerRadius: priv.cornerRadius
        designatedParent: control.isDesignatedParent ? control : undefined
    }

    QtObject {
        id: priv

        readonly property int cornerRadius: 4
    }
}
