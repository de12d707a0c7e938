/*!
    A button that looks like a link.

    \qml
    UTTextButton { text: "Learn more"; changeCursor: true; onClicked: help.open() }
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
    //! A value of UTTextButtonEnum.TextButtonColorStyle.
    property int colorStyle: 0 // UTTextButtonEnum.Accent
    //! A value of UTTextButtonEnum.TextButtonSizeStyle.
    property int sizeStyle: 0 // UTTextButtonEnum.Primary
    property alias textColor: label.color
    property alias textFont: label.font
    property alias textElide: label.elide
    //! Shows the pointing hand over the button.
    property bool changeCursor
    //! The item that hosts the focus ring; the top-most ancestor when undefined.
    property var designatedParent
    //! Whether a click shows tooltipContent in a balloon, until the next click, Escape, or the loss of focus and pointer.
    property bool enableClickTooltip
    property string tooltipContent
    //! In pixels.
    property int tooltipMaxWidth: 216

    onFocusRingWanted: settings => Object.assign(settings, {
        isRectangle: true,
        cornerRadius: () => priv.cornerRadius,
        designatedParent: () => control.designatedParent,
        themeType: () => control.themeType
    })

    UTTextButtonData.colorStyle: colorStyle
    UTTextButtonData.sizeStyle: sizeStyle

    isTextEilded: false
    contentItem: Text {
        id: label

        text: control.text
        font: control.UTTextButtonData.font
        color: ThemeUtils.getColor(control, priv.textColorSet)
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        onTruncatedChanged: control.isTextEilded = truncated
    }

    onChangeCursorChanged: Script.needPart(control, "cursor", "HandCursor", { enabled: () => control.changeCursor }, control)
    onClicked: {
        if (!enableClickTooltip || tooltipContent.length === 0)
            return;
        priv.clickTip = Script.needPart(control, "clickTip", "ClickTip", { control: control }, control);
        priv.clickTip.toggle();
    }

    QtObject {
        id: priv

        readonly property int cornerRadius: 4
        property var clickTip: null
        readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(control.UTTextButtonData.textColorSetName, control.themeType)
    }
}
