pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A line one pixel high across its parent.")
    controls: [
        PropertyColorSet { id: lineName; label: "backgroundColorSetName"; initial: "legacy-separator-primary" },
        PropertySlider { id: thickness; label: "height"; from: 1; to: 8; value: 1 }
    ]

    Playground {
        Column {
            width: 320
            spacing: 12

            KText { text: qsTr("Above the line") }
            KSeparator { height: thickness.value; backgroundColorSetName: lineName.colorSetName }
            KText { text: qsTr("Below the line") }
        }
    }
    Sheet {
        title: qsTr("Variants")
        minimumCellWidth: 190

        Repeater {
            model: ["legacy-separator-primary", "separator-primary", "list-header-outline-primary", "focus-border"]

            Cell {
                id: cell

                required property string modelData

                label: modelData
                note: modelData === "legacy-separator-primary" ? qsTr("the default") : ""

                Item {
                    width: 140
                    height: 1

                    KSeparator { backgroundColorSetName: cell.modelData }
                }
            }
        }
        Cell {
            label: qsTr("upright")
            note: qsTr("with a width and a height of its own")

            Row {
                height: 40
                spacing: 12

                KText { anchors.verticalCenter: parent.verticalCenter; text: qsTr("Left") }
                KSeparator { width: 1; height: parent.height }
                KText { anchors.verticalCenter: parent.verticalCenter; text: qsTr("Right") }
            }
        }
    }
}
