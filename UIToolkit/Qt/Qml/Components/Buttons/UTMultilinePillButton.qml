/*!
    A pill for one of several telephone lines: a frame with the name of the line before the label, and an icon after it.

    \qml
    UTMultilinePillButton {
        text: "Reception"
        shouldDisplayLineDesignator: true
        lineDesignatorText: "2"
        lineDesignatorColorName: "chips-outline-multiline-text-cobalt"
        rightIcon: "arrow-down-bold"
        buttonStyle: UTButtonStyle.Secondary
        onClicked: lines.open()
    }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Icon name; empty for none.
    property string rightIcon
    //! A value of UTButtonStyle.
    property int buttonStyle: 1 // UTButtonStyle.Primary
    //! A value of UTButtonSize.
    property int buttonSize: 1 // UTButtonSize.XL
    //! Whether the border of the style is drawn.
    property bool showBorder: true
    //! Where the label lies in a button that is wider than it needs to be.
    property int textAlignment: Text.AlignLeft
    //! The item that hosts the focus ring.
    property var focusDesignatedParent: control
    property bool innerFocusBorder
    property bool shouldDisplayLineDesignator
    //! The name of the line, and the colour set of its frame.
    property string lineDesignatorText
    property string lineDesignatorColorName: "chips-outline-multiline-text-cobalt"
    //! The colour of all texts when shouldUseSingleTextColor is true.
    property color textPrimaryNormal: (ThemeManager.globalTheme, App.getColorSet("text-primary", themeType)).normal
    //! Draws label and line in textPrimaryNormal, whatever the state; else the label has the colour of the style and the
    //! line that of its colour set.
    property bool shouldUseSingleTextColor
    //! Whether the line can be used; its frame is faint if not.
    property bool multiLineEnabled: enabled

    onFocusRingWanted: settings => Object.assign(settings, {
        innerFocusBorder: () => control.innerFocusBorder,
        designatedParent: () => control.focusDesignatedParent,
        themeType: () => control.themeType
    })

    UTMultilinePillButtonData.themeType: themeType
    UTMultilinePillButtonData.style: buttonStyle
    UTMultilinePillButtonData.size: buttonSize
    UTMultilinePillButtonData.eventData: UTEventData { source: control }

    isTextEilded: false
    implicitHeight: Math.max(UTMultilinePillButtonData.height, implicitContentHeight)
    horizontalPadding: UTMultilinePillButtonData.leftPadding // the same on the right in every size

    background: Rectangle {
        radius: control.UTMultilinePillButtonData.radius
        color: control.UTMultilinePillButtonData.backgroundColorData.color
        border.color: control.UTMultilinePillButtonData.borderColorData.color
        border.width: control.showBorder ? control.UTMultilinePillButtonData.border : 0
    }
    contentItem: Text {
        text: control.text
        font: control.UTMultilinePillButtonData.font
        color: control.shouldUseSingleTextColor ? control.textPrimaryNormal : control.UTMultilinePillButtonData.textColorData.color
        horizontalAlignment: control.textAlignment
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        onTruncatedChanged: control.isTextEilded = truncated
        // Before the first layout.
        onParentChanged: {
            if (control.shouldDisplayLineDesignator || control.rightIcon)
                Script.arrangeLine(control, this);
        }
    }

    onShouldDisplayLineDesignatorChanged: Script.rearrangeLine(control)
    onRightIconChanged: Script.rearrangeLine(control)

    // The line is not part of the name, which would change with it.
    Accessible.description: shouldDisplayLineDesignator ? lineDesignatorText : ""
}
