pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var styles: ["Default", "Cobalt", "Cyan", "Mint", "Lime", "Orange", "Pink", "Purple", "Violet"]

    category: qsTr("Buttons")
    description: qsTr("A short text that stands for a person, a filter or a file, with an icon that removes it.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Design team") },
        PropertyChoice { id: style; label: "chipStyle: Outline_"; options: page.styles },
        PropertyText { id: icon; label: "leftIcon"; value: "people-bold" },
        PropertySwitch { id: showIcon; label: "showLeftIcon"; value: true },
        PropertySlider { id: width; label: "width"; from: 48; to: 320; value: 160 },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTChip {
            width: width.value
            text: text.value
            param: 42
            chipStyle: UTChipStyle["Outline_" + style.value]
            leftIcon: icon.value
            showLeftIcon: showIcon.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
            onCloseClicked: param => page.log("closeClicked(%1)".arg(param))
        }
    }
    StateTable {
        title: qsTr("Styles")
        rows: page.styles
        delegate: UTChip {
            id: example

            required property string row
            required property StateRecord exampleState

            text: qsTr("Team")
            chipStyle: UTChipStyle["Outline_" + row]
            enabled: exampleState.enabled
            activeFocusOnTab: false
            UTChipData.eventData: UTEventData { source: example.exampleState }
        }
    }
    Sheet {
        title: qsTr("Recipients")
        text: qsTr("Close them with the icon, or with Delete or Backspace.")

        Repeater {
            id: recipients

            model: ListModel {
                id: people

                ListElement { name: "Maya Lindqvist" }
                ListElement { name: "Jonah Abara" }
                ListElement { name: "Everyone in Design and Research, all floors" }
            }

            Cell {
                id: personCell

                required property string name
                required property int index

                label: name.length > 20 ? qsTr("elided") : qsTr("with an icon")

                UTChip {
                    width: Math.min(implicitWidth, personCell.stageWidth - 24)
                    text: personCell.name
                    leftIcon: "person-bold"
                    showLeftIcon: true
                    param: personCell.index
                    onCloseClicked: param => people.remove(param)
                }
            }
        }
    }
}
