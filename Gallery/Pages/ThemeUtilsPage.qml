pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Colour")
    description: qsTr("The rule that picks the colour of a set for the state of an item, and its variant for text fields.")
    controls: [
        PropertyColorSet { id: setName; label: qsTr("Colour set"); initial: "button-accent-fill-background" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true },
        PropertySwitch { id: pressedSwitch; label: "pressed" },
        PropertySwitch { id: hoveredSwitch; label: "hovered" },
        PropertySwitch { id: focusSwitch; label: "activeFocus" },
        PropertySwitch { id: checkedSwitch; label: "checked" },
        PropertySwitch { id: readOnlySwitch; label: "readOnly" }
    ]

    readonly property kColorSet colorSet: ThemeManager.globalTheme, App.getColorSet(setName.colorSetName, "global")

    StateRecord {
        id: record

        enabled: enabledSwitch.value
        pressed: pressedSwitch.value
        hovered: hoveredSwitch.value
        activeFocus: focusSwitch.value
        checked: checkedSwitch.value
        readOnly: readOnlySwitch.value
    }
    Sheet {
        title: qsTr("Live")
        minimumCellWidth: 240

        Cell {
            label: "getColor"
            stageHeight: 128

            ColorSample {
                shade: ThemeUtils.getColor(record, page.colorSet)
                onShadeChanged: page.log(qsTr("getColor gives %1").arg(shade.toString()))
            }
        }
        Cell {
            label: "getTextFieldColor"
            note: qsTr("never pressed, and at rest while read-only")
            stageHeight: 128

            ColorSample {
                shade: ThemeUtils.getTextFieldColor(record, page.colorSet)
                onShadeChanged: page.log(qsTr("getTextFieldColor gives %1").arg(shade.toString()))
            }
        }
    }
    Sheet {
        title: qsTr("What wins")
        text: qsTr("From the left: a disabled item is disabled whatever else it is; a focus colour counts only where it differs from the resting one.")
        minimumCellWidth: 100

        Repeater {
            model: [
                { name: "disabled", state: { enabled: false, pressed: true, hovered: true, checked: true } },
                { name: "pressed", state: { enabled: true, pressed: true, hovered: true, checked: true } },
                { name: "hovered", state: { enabled: true, hovered: true, activeFocus: true, checked: true } },
                { name: "focused", state: { enabled: true, activeFocus: true, checked: true } },
                { name: "checked", state: { enabled: true, checked: true } },
                { name: "normal", state: { enabled: true } }
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData.name
                note: Object.keys(modelData.state).filter(key => modelData.state[key]).join(", ")
                stageHeight: 72

                Swatch { color: ThemeUtils.getColor(cell.modelData.state, page.colorSet) }
            }
        }
    }

    component ColorSample: Column {
        id: sample

        property color shade

        spacing: 8

        Swatch { width: 160; height: 56; color: sample.shade }
        KText { anchors.horizontalCenter: parent.horizontalCenter; text: sample.shade.toString(); font: FontConstants.codeBlocks }
    }
}
