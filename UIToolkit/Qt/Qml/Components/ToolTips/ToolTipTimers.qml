/*!
    The clocks of a tool tip. Made by UTToolTip when it is first wanted.

    \qml
    ToolTipTimers { toolTip: control }
    \endqml
*/
import QtQuick
import "qrc:/qt/qml/UIToolkitQml/ToolTipManager.js" as ToolTipManager

QtObject {
    id: timers

    required property UTToolTip toolTip

    function startToggleOff(): void {
        if (toolTip.toggleOffTime > 0)
            toggleOff.restart();
    }

    function stopToggleOff(): void {
        toggleOff.stop();
    }

    function stopStartDelay(): void {
        startDelay.stop();
    }

    readonly property Timer toggleOff: Timer {
        interval: timers.toolTip.toggleOffTime
        onTriggered: timers.toolTip.displayToolTip(false)
    }
    readonly property Timer startDelay: Timer {
        interval: timers.toolTip.delayToStartTime
        running: timers.toolTip.delayToStartTime > 0 && timers.toolTip.tooltipVisible
        onTriggered: {
            if (!timers.toolTip.managedByToolTipManager || ToolTipManager.canShow(timers.toolTip))
                timers.toolTip.displayToolTip(true);
        }
    }
    readonly property Timer positionCheck: Timer {
        interval: timers.toolTip.updatePositionTime
        repeat: true
        running: !timers.toolTip.hovered && timers.toolTip.tooltipVisible && Boolean(timers.toolTip.tooltipWindow?.visible)
        onTriggered: {
            const position = timers.toolTip.mapToGlobal(0, 0);
            const recorded = timers.toolTip.lastRecordedPosition;
            if (position.x !== recorded.x || position.y !== recorded.y)
                timers.toolTip.displayToolTip(false);
        }
    }
}
