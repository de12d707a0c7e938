/*!
    A rectangular button with an icon before its label; for tiles and tool bars. A long label takes several lines unless
    told otherwise.

    \qml
    UTRectangleButton {
        text: "Share screen"
        iconName: "share-screen-bold"
        buttonSize: UTButtonSize.M
        onClicked: call.share()
    }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! A value of UTButtonSize.
    property int buttonSize: 4 // UTButtonSize.S
    //! Icon name; empty for none.
    property string iconName
    //! Keeps the label on one line and elides it where it does not fit; the tool tip then shows all of it.
    property bool singleLine

    onFocusRingWanted: settings => Object.assign(settings, { isRectangle: true, cornerRadius: () => priv.cornerRadius, themeType: () => control.themeType })

    UTRectangleButtonData.size: buttonSize

    isTextEilded: false
    implicitHeight: Math.max(UTRectangleButtonData.preferredHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: UTRectangleButtonData.leftPadding
    verticalPadding: UTRectangleButtonData.topPadding

    background: KFrame {
        themeType: control.themeType
        controlsTarget: control
        radius: priv.cornerRadius
        backgroundColorSetName: control.checked ? "button-secondary-active-background" : "button-secondary-background"
        borderColorSetName: control.checked ? "button-secondary-active-border" : "button-secondary-border"
    }
    contentItem: Text {
        text: control.text
        font: control.UTRectangleButtonData.font
        color: ThemeUtils.getColor(control, priv.textColorSet)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: control.singleLine ? Text.NoWrap : Text.Wrap
        elide: control.singleLine ? Text.ElideRight : Text.ElideNone
        onTruncatedChanged: control.isTextEilded = truncated
        // Before the first layout.
        onParentChanged: {
            if (control.iconName.length > 0)
                Script.needPart(control, "icon", "RectangleIcon", { control: control }, this);
        }
    }

    onIconNameChanged: {
        if (implicitWidth > 0)
            Script.needPart(control, "icon", "RectangleIcon", { control: control }, contentItem);
    }

    QtObject {
        id: priv

        readonly property int cornerRadius: 4
        readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(
            control.checked ? "button-secondary-active-text" : "button-secondary-text", control.themeType)
    }
}
