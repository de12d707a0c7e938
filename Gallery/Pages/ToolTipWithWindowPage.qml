pragma ComponentBehavior: Bound

import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Tool tips")
    description: qsTr("The tool tip of buttons: it shows in its own window when its control has been active for 800 ms.")
    controls: [
        PropertyText { id: text; label: "tooltipText"; value: qsTr("Everyone hears you") },
        PropertySwitch { id: custom; label: "isTooltipCustom" },
        PropertySwitch { id: active; label: "active" }
    ]

    Playground {
        UTPillButton {
            id: button

            text: qsTr("Point at me")
            buttonStyle: UTButtonStyle.Secondary
            buttonSize: UTButtonSize.L

            ToolTipWithWindow {
                tooltipText: text.value
                isTooltipCustom: custom.value
                active: active.value || button.hovered || button.activeFocus && App.isKeyboardFocus
                onActiveChanged: page.log("active: %1".arg(active))
                onTooltipItemChanged: page.log(tooltipItem ? qsTr("window made") : qsTr("window gone"))
            }
        }
    }
}
