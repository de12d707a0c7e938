pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A plain button with round ends and the icon or picture of its icon property.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Share") },
        PropertyChoice { id: alignment; label: "alignment"; options: ["AlignLeft", "AlignRight", "AlignHCenter"]; currentIndex: 2 },
        PropertySwitch { id: original; label: "showSvgIconOriginalColor" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        DSvgButton {
            width: 160
            text: text.value
            icon.name: "share-screen-bold"
            icon.source: "qrc:/Resources/sample-landscape.png"
            iconWidth: 16
            iconHeight: 16
            alignment: [Text.AlignLeft, Text.AlignRight, Text.AlignHCenter][alignment.currentIndex]
            showSvgIconOriginalColor: original.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Forms")
        minimumCellWidth: 200

        Cell {
            label: "icon.name"

            DSvgButton { text: qsTr("Share"); icon.name: "share-screen-bold" }
        }
        Cell {
            label: qsTr("icon alone")

            DSvgButton { icon.name: "share-screen-bold"; tooltip: qsTr("Share") }
        }
        Cell {
            label: "showSvgIconOriginalColor"

            DSvgButton { text: qsTr("Picture"); icon.source: "qrc:/Resources/sample-landscape.png"; showSvgIconOriginalColor: true; iconWidth: 20; iconHeight: 12 }
        }
        Cell {
            label: qsTr("disabled")

            DSvgButton { text: qsTr("Share"); icon.name: "share-screen-bold"; enabled: false }
        }
    }
}
