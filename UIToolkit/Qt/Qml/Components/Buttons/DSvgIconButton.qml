/*!
    A plain button with round ends and an icon, before its label if it has one.

    \qml
    DSvgIconButton { iconName: "plus-bold"; iconWidth: 16; iconHeight: 16; tooltip: "Add people" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

DPillButton {
    id: control

    //! Icon name; empty for none.
    property string iconName
    property string iconColorSetName: "buttonText-secondary"
    //! In pixels.
    property real iconHeight: 12
    property real iconWidth: 12

    implicitHeight: Math.max(implicitContentHeight, iconHeight) + topPadding + bottomPadding
    horizontalPadding: 8
    implicitWidth: Math.max(implicitHeight, text.length > 0 ? implicitContentWidth + leftPadding + rightPadding : iconWidth + leftPadding + rightPadding)

    onIconNameChanged: {
        Script.needPart(control, "icon", "ButtonIcon", {
            control: control,
            iconName: () => control.iconName,
            color: () => control.stateColor((ThemeManager.globalTheme, App.getColorSet(control.iconColorSetName, control.themeType))),
            width: () => control.iconWidth,
            height: () => control.iconHeight
        }, contentItem);
    }
}
