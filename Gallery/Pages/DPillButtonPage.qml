pragma ComponentBehavior: Bound

import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A plain button with round ends.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Show more") },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        DPillButton { text: text.value; enabled: enabledSwitch.value; onClicked: page.log("clicked") }
    }
    Sheet {
        title: qsTr("States")

        Cell {
            label: qsTr("normal")

            DPillButton { text: qsTr("Show more") }
        }
        Cell {
            label: qsTr("checked")

            DPillButton { text: qsTr("Show more"); checkable: true; checked: true }
        }
        Cell {
            label: qsTr("disabled")

            DPillButton { text: qsTr("Show more"); enabled: false }
        }
    }
}
