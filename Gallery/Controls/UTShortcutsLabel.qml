/*! What stands in for the library's field that records a shortcut, until there is one. */
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

UTPillButton {
    id: control

    property bool isInEditMode: false

    signal keyPressed(event: KKeyEvent)
    signal keyReleased(event: KKeyEvent)

    UTKeyEventData.ignoreKeyEvents: control.isInEditMode
    UTKeyEventData.onKKeyPressEventChanged: keyPressed(UTKeyEventData.kKeyPressEvent)
    UTKeyEventData.onKKeyReleaseEventChanged: keyReleased(UTKeyEventData.kKeyReleaseEvent)
}
