/*!
    The tool tip of a UTLabel, which makes it when it first has something to tell.

    \qml
    LabelToolTip { label: control }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private 1.0

ToolTipWithWindow {
    id: control

    required property UTLabel label

    tooltipText: label.toolTipText
    isTooltipCustom: !label.isTooltipNative
    active: hover.hovered && label.tooltipEnabled && tooltipText.length > 0

    HoverHandler {
        id: hover
    }
}
