pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("All icons of the host, with their names; any of them can be had in any colour.")
    controls: [
        PropertyText { id: filter; label: qsTr("Icons whose name holds"); prompt: qsTr("bold, filled, call ...") },
        PropertySlider { id: size; label: qsTr("Size"); from: 12; to: 48; stepSize: 4; value: 24 },
        PropertyColorSet { id: colorName; label: qsTr("Colour set"); initial: "text-primary" }
    ]

    readonly property list<string> shown: Session.iconNames.filter(name => name.includes(filter.value.trim().toLowerCase()))

    Sheet {
        title: qsTr("%1 of %2 icons").arg(page.shown.length).arg(Session.iconNames.length)
        minimumCellWidth: 120
        cellSpacing: Metrics.small

        Repeater {
            model: page.shown

            Cell {
                id: cell

                required property string modelData

                stageHeight: 64
                note: modelData

                KSvgIcon {
                    svgName: cell.modelData
                    svgColorSetName: colorName.colorSetName
                    height: size.value
                }
            }
        }
    }
}
