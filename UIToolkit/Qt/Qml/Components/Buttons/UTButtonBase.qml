/*!
    The base of the library's buttons; for use inside the library only. It adds activation by keyboard, a tool tip, a focus
    ring and announcements to a bare button, and has no look of its own.

    \qml
    UTButtonBase {
        id: control
        tooltip: "Mute"
        contentItem: KSvgIcon { svgName: "microphone-bold" }
        onFocusRingWanted: settings => Object.assign(settings, { isRectangle: true, cornerRadius: 4 })
    }
    \endqml
*/
import QtQuick
import QtQuick.Templates as T
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

T.Button {
    id: control

    //! Shows the tool tip as a balloon with an arrow instead of a plain rectangle.
    property bool isTooltipCustom
    property bool shouldTooltipBeDisplayed: true
    //! Says "Checked" or "Unchecked" when the state changes while the button has the focus.
    property bool announceStateChange
    //! Whether the keyboard can check the button but not uncheck it.
    property bool isInExclusiveGroup
    //! Whether the label is elided, so that the tool tip has to show it; undefined where that does not matter.
    property var isTextEilded
    property string tooltip
    //! Spoken when it changes while the button has the focus.
    property string accessibleText

    // For the host: a button for assistive technology too when it can be checked, where Qt makes it a check box.
    readonly property int accessibleRole: 43 // Accessible.Button

    // For the script: whether an activating key is down, and the parts made so far by name.
    property bool isKeyPressed
    property var parts

    //! The keyboard reaches the button for the first time, which wants a focus ring then. The handler puts the properties of
    //! the ring, a KCustomFocusItem, into \a settings; values that may change later are functions, and followed. A button
    //! that puts in nothing has none. It is a signal because a function would cost each button its closure.
    signal focusRingWanted(settings: var)
    // Called by name for the press action of assistive technology, in place of what Qt would do.
    signal accessiblePressAction()

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset, implicitContentHeight + topPadding + bottomPadding)

    onAccessiblePressAction: Script.activate(control)
    onHoveredChanged: Script.attend(control)
    onActiveFocusChanged: {
        isKeyPressed = false;
        Script.attend(control);
    }

    // The text is the name without further ado; an application that names the button itself knows better.
    onTooltipChanged: {
        if (Accessible.name === "" || Accessible.name === text)
            Accessible.name = Qt.binding(() => control.text || control.tooltip);
    }
}
