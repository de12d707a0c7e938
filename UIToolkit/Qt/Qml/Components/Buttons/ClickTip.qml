/*!
    The tool tip that a click on a text button shows. It closes with the next click, with Escape, and when neither the
    pointer nor the focus is on the button any more.

    \qml
    ClickTip { control: textButton }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

UTToolTip {
    id: tip

    required property UTTextButton control
    property bool isOpen
    readonly property bool isAttended: control.hovered || control.activeFocus

    function toggle(): void {
        isOpen = !isOpen;
        if (isOpen)
            UIToolKitUtils.sayAccessible(control, tooltipText);
    }

    anchors.fill: parent
    tooltipStyle: UTTooltipEnum.Customized
    tooltipText: control.tooltipContent
    maximumWidth: control.tooltipMaxWidth
    themeType: control.themeType
    active: isOpen

    onIsAttendedChanged: {
        if (!isAttended)
            isOpen = false;
    }
    onShowToolTip: tooltipWindow = ToolTipWindowManager.getWindow(tip, true)

    Shortcut {
        sequence: "Escape"
        enabled: tip.isOpen
        onActivated: tip.isOpen = false
    }
}
