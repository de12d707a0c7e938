pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Accessibility")
    description: qsTr("The keys under which components hand accessibility texts to one another.")
    controls: [
        PropertyText { id: text; label: qsTr("Text under every key"); value: qsTr("Inbox") }
    ]

    readonly property list<string> keys: [
        "name", "description", "popupName", "leftItemName", "leftItemDescription", "middleItemName",
        "middleItemDescription", "rightItemName", "rightItemDescription"
    ]

    Sheet {
        title: qsTr("Keys")
        text: qsTr("The value of each is its own name.")
        minimumCellWidth: 300

        Repeater {
            model: page.keys

            Cell {
                id: cell

                required property string modelData

                label: modelData
                note: "{ [AccessibleConstants.%1]: \"%2\" }".arg(modelData).arg(text.value)
                stageHeight: 64

                KText { text: "\"%1\"".arg(AccessibleConstants[cell.modelData]); font: FontConstants.codeBlocks }
            }
        }
    }
}
