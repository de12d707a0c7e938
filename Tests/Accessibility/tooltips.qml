import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

// A tool tip that comes and goes, and tells by an announcement that it has.
Window {
    width: 320
    height: 200
    visible: true
    title: "Tool tips"

    Action {
        id: mute

        Accessible.name: "Mute"
        focus: true
        onTriggered: tip.active = !tip.active

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
