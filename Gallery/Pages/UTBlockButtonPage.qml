pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A button that takes a whole block of a card or a message: a title, and what there is to know below.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Design review<br>Tuesday, 10:00 to 11:00") },
        PropertySlider { id: width; label: "width"; from: 80; to: 560; value: 320 },
        PropertyText { id: tooltip; label: "tooltip" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTBlockButton {
            width: width.value
            text: text.value
            tooltip: tooltip.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Texts")
        minimumCellWidth: 280

        Repeater {
            model: [
                { label: qsTr("a title"), text: qsTr("Show all 12 participants") },
                { label: qsTr("a title and lines"), text: qsTr("Design review\nTuesday, 10:00 to 11:00\nRoom 4") },
                { label: qsTr("rich text"), text: qsTr("<h3>Notes of the meeting</h3><ul><li>Ship on <b>Friday</b></li><li>5 < 6</li></ul>") },
                { label: qsTr("emojis"), text: qsTr("Party at eight 🎉\nBring 🍕 and 👩‍👧") },
                { label: qsTr("endless"), text: qsTr("Minutes") + "\n" + qsTr("and then we talked about the next release, ").repeat(20) },
                { label: qsTr("disabled"), text: qsTr("Design review\nis over"), off: true }
            ]

            Cell {
                id: textCell

                required property var modelData

                label: modelData.label
                stageHeight: 120

                UTBlockButton {
                    width: textCell.stageWidth - 32
                    text: textCell.modelData.text
                    enabled: !textCell.modelData.off
                }
            }
        }
    }
}
