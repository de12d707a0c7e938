pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A picture of the host's resources, drawn at the size that it is shown.")
    controls: [
        PropertyChoice { id: name; label: "svgName"; options: ["empty-inbox", "spinner", "audio-wave-1", "audio-wave-3"] },
        PropertySlider { id: size; label: "height"; from: 16; to: 240; value: 160 }
    ]

    Playground {
        stageHeight: 288

        KSvgImage {
            svgName: name.value
            height: size.value
            onStatusChanged: page.log(qsTr("status is %1").arg(["Null", "Ready", "Loading", "Error"][status]))
            onSourceSizeChanged: page.log(qsTr("sourceSize is %1 × %2").arg(sourceSize.width).arg(sourceSize.height))
        }
    }
    Sheet {
        title: qsTr("Sizes")
        text: qsTr("As wide as high unless told otherwise, and crisp at every size; 200 by default.")

        Repeater {
            model: [24, 48, 96]

            Cell {
                id: cell

                required property int modelData

                label: "height: %1".arg(modelData)
                stageHeight: 128

                KSvgImage { svgName: "empty-inbox"; height: cell.modelData }
            }
        }
        Cell {
            label: qsTr("without svgName")
            note: qsTr("takes room, paints nothing")

            KSvgImage { height: 48 }
        }
    }
}
