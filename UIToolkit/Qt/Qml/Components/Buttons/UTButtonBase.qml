/*!
    The base of the library's buttons; for use inside the library only. It adds activation by keyboard, a tool tip, a focus
    ring and announcements to a bare button, and has no look of its own.

    \qml
    UTButtonBase {
        id: control
        tooltip: "Mute"
        contentItem: KSvgIcon { svgName: "microphone-bold" }
        function focusRingSettings(): var { return { isRectangle: true, cornerRadius: 4 }; }
    }
    \endqml
*/
import QtQuick
import QtQuick.Templates as T
import Korvu 1.0

T.Button {
    id: control

    //! Shows the tool tip as a balloon with an arrow instead of a plain rectangle.
    property bool isTooltipCustom: false
    property bool shouldTooltipBeDisplayed: true
    //! Says "Checked" or "Unchecked" when the state changes while the button has the focus.
    property bool announceStateChange: false
    //! Whether the keyboard can check the button but not uncheck it.
    property bool isInExclusiveGroup: false
    //! Whether the label is elided, so that the tool tip has to show it; undefined where that does not matter.
    property var isTextEilded
    property string tooltip
    //! Spoken when it changes while the button has the focus.
    property string accessibleText

    //! What the tool tip shows now; empty for none.
    function tooltipText(): string {
        if (isTextEilded === undefined)
            return tooltip;
        const prepended = isTextEilded ? text : "";
        const appended = tooltip !== text ? tooltip : "";
        return prepended && appended ? qsTr("%1\n%2").arg(prepended).arg(appended) : prepended || appended;
    }

    //! The properties of the focus ring, a KCustomFocusItem; null, the default, for no ring. The ring is made when the
    //! keyboard first reaches the button; values that may change later are functions, and followed.
    function focusRingSettings(): var {
        return null;
    }

    //! The part called \a name, made when first asked for: the component \a type with \a settings, those that are
    //! functions bound, on \a parent. For what most buttons never show.
    function needPart(name: string, type: string, settings: var, parent: QtObject): QtObject {
        if (!priv.parts[name])
            priv.parts[name] = priv.create(type, settings, parent);
        return priv.parts[name];
    }

    //! What the keyboard and assistive technology do to press the button.
    function activate(): void {
        if (!checkable) {
            clicked();
        } else if (!isInExclusiveGroup) {
            toggle();
            toggled();
        } else if (!checked) {
            checked = true;
            clicked();
            toggled();
        }
    }

    // Called by name for the press action of assistive technology, in place of what Qt would do.
    function accessiblePressAction(): void {
        activate();
    }

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset, implicitContentHeight + topPadding + bottomPadding)

    Keys.onPressed: event => priv.handleKey(event, true)
    Keys.onReleased: event => priv.handleKey(event, false)

    onHoveredChanged: priv.attend()
    onActiveFocusChanged: {
        priv.isKeyPressed = false;
        priv.attend();
    }
    onCheckedChanged: {
        if (announceStateChange)
            priv.say(checked ? qsTr("Checked") : qsTr("Unchecked"));
    }
    onAccessibleTextChanged: priv.say(accessibleText)

    Accessible.name: text || tooltip

    QtObject {
        id: priv

        property bool isKeyPressed: false
        readonly property var parts: ({})

        function attend(): void {
            if (control.hovered || control.activeFocus)
                control.needPart("attention", "ButtonAttention", { control: control }, control);
        }

        function create(type: string, settings: var, parent: QtObject): QtObject {
            for (const name in settings) {
                if (typeof settings[name] === "function")
                    settings[name] = Qt.binding(settings[name]);
            }
            return Qt.createComponent("%1.qml".arg(type)).createObject(parent, settings);
        }

        // Acts on release, and only if the key went down on this button. Auto-repeated keys are swallowed.
        function handleKey(event: KeyEvent, isPress: bool): void {
            if (event.key !== Qt.Key_Space && event.key !== Qt.Key_Return && event.key !== Qt.Key_Enter)
                return;
            event.accepted = true;
            if (event.isAutoRepeat)
                return;
            const activates = !isPress && isKeyPressed;
            isKeyPressed = isPress;
            if (activates)
                control.activate();
        }

        function say(text: string): void {
            if (control.activeFocus && UIToolKitUtils.isQt6Used())
                UIToolKitUtils.sayAccessible(control, text);
        }
    }
}
