pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Tool tips")
    description: qsTr("The plain look of a tool tip, as it stands in its window.")
    controls: [
        PropertyText { id: text; label: "tooltipText"; value: qsTr("Everyone hears you") },
        PropertySlider { id: maximumWidth; label: "maximumWidth"; from: 20; to: 500; value: 308 },
        PropertySlider { id: lines; label: "maximumLineCount"; to: 6; value: 3 }
    ]

    Playground {
        NativeToolTip {
            tooltipText: text.value
            maximumWidth: maximumWidth.value
            maximumLineCount: lines.value
        }
    }
    Sheet {
        title: qsTr("Texts")
        minimumCellWidth: 340

        Repeater {
            model: [
                { label: qsTr("one letter"), text: "a" },
                { label: qsTr("short"), text: qsTr("Mute") },
                { label: qsTr("long"), text: qsTr("Only the people in this space hear you, until you open the line to everyone else who has joined by telephone") },
                { label: qsTr("two lines"), text: qsTr("Join the call\nEveryone is there already") },
                { label: qsTr("a word without end"), text: "https://example.com/a/very/long/address/that/no/line/holds/as/it/stands" },
                { label: qsTr("from right to left"), text: "مرحبا بالعالم – שלום" },
                { label: qsTr("no markup"), text: "<b>a</b> & <img src='x'>" }
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData.label

                NativeToolTip { maximumWidth: 308; tooltipText: cell.modelData.text }
            }
        }
    }
}
