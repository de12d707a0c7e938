pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A plain button with round ends and an icon, before its label if it has one.")
    controls: [
        PropertyText { id: text; label: "text"; value: "" },
        PropertySlider { id: size; label: qsTr("iconWidth and iconHeight"); from: 8; to: 32; value: 16 },
        PropertyColorSet { id: color; label: "iconColorSetName"; initial: "buttonText-secondary" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        DSvgIconButton {
            text: text.value
            iconName: "plus-bold"
            iconWidth: size.value
            iconHeight: size.value
            iconColorSetName: color.colorSetName
            tooltip: qsTr("Add people")
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: qsTr("icon")

            DSvgIconButton { iconName: "plus-bold"; tooltip: qsTr("Add people") }
        }
        Cell {
            label: qsTr("icon and label")

            DSvgIconButton { iconName: "plus-bold"; text: qsTr("Add people") }
        }
        Cell {
            label: qsTr("in a wide button")

            DSvgIconButton { width: 140; iconName: "plus-bold"; text: qsTr("Add") }
        }
        Cell {
            label: qsTr("disabled")

            DSvgIconButton { iconName: "plus-bold"; text: qsTr("Add people"); enabled: false }
        }
    }
}
