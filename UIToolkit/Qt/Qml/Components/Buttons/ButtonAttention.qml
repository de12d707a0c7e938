/*!
    What a button needs once the pointer or the focus has been on it: the activating keys, what is said while it has the
    focus, and the tool tip and the focus ring, each made when first shown. Made by UTButtonBase.

    \qml
    ButtonAttention { control: button }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

QtObject {
    id: attention

    required property UTButtonBase control

    readonly property bool hasKeyboardFocus: control.activeFocus && App.isKeyboardFocus
    readonly property bool isTipWanted: control.shouldTooltipBeDisplayed && (control.hovered || hasKeyboardFocus)
        && Script.tooltipText(control).length > 0

    readonly property Connections announcements: Connections {
        target: attention.control

        function onCheckedChanged(): void {
            if (attention.control.announceStateChange)
                Script.say(attention.control, attention.control.checked ? qsTr("Checked") : qsTr("Unchecked"));
        }
        function onAccessibleTextChanged(): void {
            Script.say(attention.control, attention.control.accessibleText);
        }
    }

    onHasKeyboardFocusChanged: {
        const settings = {};
        if (hasKeyboardFocus)
            control.focusRingWanted(settings);
        if (Object.keys(settings).length > 0)
            Script.needPart(control, "focusRing", "KCustomFocusItem", settings, control);
    }
    onIsTipWantedChanged: {
        if (isTipWanted) {
            Script.needPart(control, "tip", "ToolTipWithWindow", {
                tooltipText: () => Script.tooltipText(control),
                isTooltipCustom: () => control.isTooltipCustom,
                active: () => attention.isTipWanted
            }, control);
        }
    }
    // After the handlers of the application, which may take a key for themselves.
    Component.onCompleted: {
        control.Keys.pressed.connect(event => Script.handleKey(control, event, true));
        control.Keys.released.connect(event => Script.handleKey(control, event, false));
    }
}
