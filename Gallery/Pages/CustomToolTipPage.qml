pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Tool tips")
    description: qsTr("The balloon look of a tool tip, as it stands in its window.")
    controls: [
        PropertyText { id: text; label: "tooltipText"; value: qsTr("Everyone hears you") },
        PropertyChoice { id: anchor; label: "arrowAnchor"; options: ["None", "Top", "Bottom", "Left", "Right"]; currentIndex: 1 },
        PropertySlider { id: offset; label: "arrowOffset"; from: -80; to: 80; value: 0 },
        PropertySlider { id: maximumWidth; label: "maximumWidth"; from: 60; to: 500; value: 308 },
        PropertySlider { id: lines; label: "maximumLineCount"; to: 6; value: 3 }
    ]

    Playground {
        CustomToolTip {
            tooltipText: text.value
            arrowAnchor: UTTooltipEnum[anchor.value]
            arrowOffset: offset.value
            maximumWidth: maximumWidth.value
            maximumLineCount: lines.value
        }
    }
    Sheet {
        title: qsTr("Anchors and alignments")
        minimumCellWidth: 180

        Repeater {
            model: [
                "None, CenterAlignment", "Top, LeftAlignment", "Top, CenterAlignment", "Top, RightAlignment",
                "Bottom, LeftAlignment", "Bottom, CenterAlignment", "Bottom, RightAlignment", "Left, TopAlignment",
                "Left, CenterAlignment", "Left, BottomAlignment", "Right, TopAlignment", "Right, CenterAlignment",
                "Right, BottomAlignment"
            ]

            Cell {
                id: cell

                required property string modelData
                readonly property list<string> names: modelData.split(", ")

                label: modelData

                CustomToolTip {
                    tooltipText: qsTr("Everyone hears you")
                    arrowAnchor: UTTooltipEnum[cell.names[0]]
                    arrowAlignment: UTTooltipEnum[cell.names[1]]
                }
            }
        }
    }
    Sheet {
        title: qsTr("Texts")
        minimumCellWidth: 340

        Repeater {
            model: [
                { label: qsTr("one letter"), text: "a" },
                { label: qsTr("long"), text: qsTr("Only the people in this space hear you, until you open the line to everyone else who has joined by telephone") },
                { label: qsTr("from right to left"), text: "مرحبا بالعالم – שלום" }
            ]

            Cell {
                id: textCell

                required property var modelData

                label: modelData.label

                CustomToolTip { arrowAnchor: UTTooltipEnum.Top; tooltipText: textCell.modelData.text }
            }
        }
    }
}
