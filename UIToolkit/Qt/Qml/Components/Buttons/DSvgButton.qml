/*!
    A plain button with round ends and the icon that its \c icon names: by \c name an icon of the host, by \c source a
    picture. Its text is its tool tip, unless that is set.

    \qml
    DSvgButton { text: "Share"; icon.name: "share-screen-bold" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

KButton {
    id: control

    //! Where icon and label lie, a value of Text's alignments.
    property int alignment: Text.AlignHCenter
    //! In pixels.
    property real iconHeight: 12
    property real iconWidth: 12
    property string iconColorSetName: "buttonText-secondary"
    //! Shows the picture of icon.source in its own colours, instead of the icon of icon.name.
    property bool showSvgIconOriginalColor: false

    function needIcon(): void {
        Script.needPart(control, "icon", "ButtonIcon", {
            control: control,
            iconName: () => control.icon.name,
            picture: () => control.showSvgIconOriginalColor || control.icon.name.length === 0 ? control.icon.source : "",
            color: () => control.stateColor((ThemeManager.globalTheme, App.getColorSet(control.iconColorSetName, control.themeType))),
            width: () => control.iconWidth,
            height: () => control.iconHeight
        }, contentItem);
    }

    horizontalAlignment: alignment
    radius: height / 2
    implicitHeight: Math.max(implicitContentHeight, iconHeight) + topPadding + bottomPadding
    tooltip: text
    implicitWidth: Math.max(implicitHeight, text.length > 0 ? implicitContentWidth + leftPadding + rightPadding : iconWidth + leftPadding + rightPadding)

    onIconChanged: needIcon()
}
