pragma ComponentBehavior: Bound

import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A square button with an icon that is on or off.")
    controls: [
        PropertySwitch { id: isChecked; label: "isChecked" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTRectangleToggleButton {
            buttonIcon: "pin-bold"
            tooltip: qsTr("Pin")
            isChecked: isChecked.value
            enabled: enabledSwitch.value
            onToggled: page.log(checked ? qsTr("toggled, checked") : qsTr("toggled, not checked"))
        }
    }
    Sheet {
        title: qsTr("States")

        Cell {
            label: qsTr("off")

            UTRectangleToggleButton { buttonIcon: "pin-bold"; tooltip: qsTr("Pin") }
        }
        Cell {
            label: qsTr("on")

            UTRectangleToggleButton { buttonIcon: "pin-bold"; tooltip: qsTr("Pin"); isChecked: true }
        }
        Cell {
            label: qsTr("off and disabled")

            UTRectangleToggleButton { buttonIcon: "pin-bold"; tooltip: qsTr("Pin"); enabled: false }
        }
        Cell {
            label: qsTr("on and disabled")

            UTRectangleToggleButton { buttonIcon: "pin-bold"; tooltip: qsTr("Pin"); isChecked: true; enabled: false }
        }
    }
}
