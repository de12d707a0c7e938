pragma ComponentBehavior: Bound

import UIToolkitQml_Private 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A small square button with an icon, for tool bars; for use inside the library only.")
    controls: [
        PropertySwitch { id: hover; label: "hoverOverride" },
        PropertySwitch { id: innerBorder; label: "focusOutline.innerFocusBorder" },
        PropertySlider { id: cornerRadius; label: "focusOutline.cornerRadius"; to: 14; value: 4 },
        PropertySwitch { id: designated; label: "isDesignatedParent" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTToolButton {
            iconName: "copy-bold"
            tooltip: qsTr("Copy")
            hoverOverride: hover.value
            focusOutline.innerFocusBorder: innerBorder.value
            focusOutline.cornerRadius: cornerRadius.value
            isDesignatedParent: designated.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("States")

        Cell {
            label: qsTr("normal")

            UTToolButton { iconName: "copy-bold"; tooltip: qsTr("Copy") }
        }
        Cell {
            label: "hoverOverride"

            UTToolButton { iconName: "copy-bold"; tooltip: qsTr("Copy"); hoverOverride: true }
        }
        Cell {
            label: qsTr("checked")

            UTToolButton { iconName: "copy-bold"; tooltip: qsTr("Copy"); checkable: true; checked: true }
        }
        Cell {
            label: qsTr("disabled")

            UTToolButton { iconName: "copy-bold"; tooltip: qsTr("Copy"); enabled: false }
        }
    }
}
