import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

// A tool tip that comes and goes, and tells by an announcement that it has.
Window {
    width: 320
    height: 200
    visible: true
    title: "Tool tips"

    Item {
        id: mute

        width: 80
        height: 30
        focus: true
        activeFocusOnTab: true

        Accessible.role: Accessible.MenuItem
        Accessible.name: "Mute"
        Accessible.focusable: true
        Accessible.onPressAction: tip.active = !tip.active

        UTToolTip {
            id: tip

            anchors.fill: parent
            tooltipText: "Nobody hears you"
            onShowToolTip: tooltipWindow = ToolTipWindowManager.getWindow(this, true)
            onLastRecordedPositionChanged: UIToolKitUtils.sayAccessible(mute, "shown")
            onAboutToHide: UIToolKitUtils.sayAccessible(mute, "hidden")
        }
    }
}
