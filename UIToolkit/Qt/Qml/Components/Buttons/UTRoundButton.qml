/*!
    A circle with an icon in it, in any of the button styles and sizes. Its tool tip names it.

    \qml
    UTRoundButton {
        buttonIcon: "microphone-bold"
        tooltip: "Mute"
        buttonStyle: UTButtonStyle.Secondary
        buttonSize: UTButtonSize.M
        onClicked: call.mute()
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var focusRingThemeType: themeType
    //! Icon name; empty for none.
    property string buttonIcon
    //! The colour, as text, of the icon in the style Customized.
    property string iconColorCustomized
    //! A value of UTButtonStyle.
    property int buttonStyle: 1 // UTButtonStyle.Primary
    //! A value of UTButtonSize.
    property int buttonSize: 1 // UTButtonSize.XL
    property bool innerFocusBorder
    //! Colour set of the icon in place of that of the style.
    property string iconColorSetName
    //! The item that hosts the focus ring.
    property var focusDesignatedParent: control
    //! Mirrors the icon where the layout runs from right to left; for arrows and the like.
    property bool mirrorEnabled
    //! The focus ring's rectangle, in the button's coordinates; empty for the button's own.
    property rect customFocusRect

    onFocusRingWanted: settings => Object.assign(settings, {
        innerFocusBorder: () => control.innerFocusBorder,
        designatedParent: () => control.focusDesignatedParent,
        themeType: () => control.focusRingThemeType,
        customRect: () => control.customFocusRect
    })

    UTRoundButtonData.themeType: themeType
    UTRoundButtonData.eventData: UTEventData { followsItem: true }
    UTRoundButtonData.size: UTButtonSize.XL
    UTRoundButtonData.style: UTButtonStyle.Primary

    implicitWidth: UTRoundButtonData.width
    implicitHeight: UTRoundButtonData.height

    // Painted by the data object.
    background: Rectangle { objectName: "ground" }
    contentItem: Image {
        // No colour yet, no name or no size: nothing to load.
        source: {
            const data = control.UTRoundButtonData;
            const color = data.iconColorData.color;
            return color.a > 0 && control.buttonIcon.length > 0 && data.iconSize.width > 0 ? `image://svg/${color}/${control.buttonIcon}` : "";
        }
        sourceSize: control.UTRoundButtonData.iconSize
        fillMode: Image.Pad
        mipmap: true // as everywhere, for the texture is shared
    }

    // Handlers in place of bindings: most buttons keep the first values.
    onButtonStyleChanged: UTRoundButtonData.style = buttonStyle
    onButtonSizeChanged: UTRoundButtonData.size = buttonSize
    onMirrorEnabledChanged: (contentItem as Image).mirror = Qt.binding(() => control.mirrorEnabled && control.mirrored)
    onIconColorSetNameChanged: UTRoundButtonData.iconColorSetName = iconColorSetName
    onIconColorCustomizedChanged: {
        UTRoundButtonData.iconColorCustomized = iconColorCustomized;
        UTRoundButtonData.refresh();
    }
}
