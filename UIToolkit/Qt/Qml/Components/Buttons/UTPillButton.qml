/*!
    A button in the form of a pill: a label with an icon on either side, in any of the button styles and sizes.

    \qml
    UTPillButton {
        text: "Join"
        leftIcon: "video-bold"
        buttonStyle: UTButtonStyle.Join
        buttonSize: UTButtonSize.L
        onClicked: call.join()
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var focusRingThemeType: themeType
    //! Icon names; empty for none.
    property string leftIcon
    property string rightIcon
    //! A value of UTSvgResource.ImagePrefixType for both icons.
    property var iconPrefixType: 0 // UTSvgResource.ImagePrefixType.None
    //! Colour sets of the icons in place of those of the style.
    property string iconColorSetName
    property string rightIconColorSetName
    //! A value of UTButtonStyle.
    property int buttonStyle: 1 // UTButtonStyle.Primary
    //! A value of UTButtonSize.
    property int buttonSize: 1 // UTButtonSize.XL
    //! Where the label lies in a button that is wider than it needs to be, Text.AlignLeft for example; the label is then
    //! elided where it does not fit. Undefined for a centred label that never is.
    property var alignment
    //! The item that hosts the focus ring.
    property var focusDesignatedParent: control
    property bool innerFocusBorder
    //! Keeps the icons next to an aligned label, instead of at the ends of the button.
    property bool isIconAlignText
    readonly property bool isTruncated: isTextEilded === true

    onFocusRingWanted: settings => Object.assign(settings, {
        innerFocusBorder: () => control.innerFocusBorder,
        designatedParent: () => control.focusDesignatedParent,
        themeType: () => control.focusRingThemeType
    })

    UTPillButtonData.themeType: themeType
    UTPillButtonData.eventData: UTEventData { followsItem: true }
    UTPillButtonData.size: UTButtonSize.XL
    UTPillButtonData.style: UTButtonStyle.Primary

    isTextEilded: false
    implicitHeight: Math.max(UTPillButtonData.height, implicitContentHeight)
    horizontalPadding: UTPillButtonData.leftPadding // the same on the right in every size

    // Painted by the data object.
    background: Rectangle { objectName: "ground" }
    contentItem: Text {
        objectName: "label"
        text: control.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        onTruncatedChanged: control.isTextEilded = truncated
        // Before the first layout, which all this would upset.
        onParentChanged: {
            if (control.alignment !== undefined || control.leftIcon || control.rightIcon)
                Script.arrangePill(control, this);
        }
    }

    // Handlers in place of bindings: most buttons keep the first values.
    onButtonStyleChanged: UTPillButtonData.style = buttonStyle
    onButtonSizeChanged: UTPillButtonData.size = buttonSize

    // Most buttons have neither an alignment nor icons nor colours for them, and shall not pay for them.
    onAlignmentChanged: Script.rearrangePill(control)
    onLeftIconChanged: Script.rearrangePill(control)
    onRightIconChanged: Script.rearrangePill(control)
    onIconColorSetNameChanged: UTPillButtonData.iconColorSetName = iconColorSetName
    onRightIconColorSetNameChanged: UTPillButtonData.rightIconColorSetName = rightIconColorSetName
}
