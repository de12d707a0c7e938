/*!
    What a button needs once the pointer or the focus has been on it: the tool tip and the focus ring, each made when first
    shown. Made by UTButtonBase.

    \qml
    ButtonAttention { control: button }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0

QtObject {
    id: attention

    required property UTButtonBase control

    readonly property bool hasKeyboardFocus: control.activeFocus && App.isKeyboardFocus
    readonly property bool isTipWanted: control.shouldTooltipBeDisplayed && (control.hovered || hasKeyboardFocus)
        && control.tooltipText().length > 0

    onHasKeyboardFocusChanged: {
        const settings = control.focusRingSettings();
        if (hasKeyboardFocus && settings)
            control.needPart("focusRing", "KCustomFocusItem", settings, control);
    }
    onIsTipWantedChanged: {
        if (isTipWanted) {
            control.needPart("tip", "ToolTipWithWindow", {
                tooltipText: () => control.tooltipText(),
                isTooltipCustom: () => control.isTooltipCustom,
                active: () => attention.isTipWanted
            }, control);
        }
    }
}
