import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A text over and over, across what it marks.")
    controls: [
        PropertyText { id: text; label: "contentText"; value: qsTr("Confidential") },
        PropertySlider { id: opacity; label: qsTr("customOpacity in %"); to: 100; value: 10 },
        PropertySlider { id: angle; label: "rotationAngle"; from: -60; to: 60; value: -15 }
    ]

    Playground {
        KFrame {
            width: 480
            height: 240
            radius: 8

            UTWatermark {
                anchors.fill: parent
                contentText: text.value
                customOpacity: opacity.value / 100
                rotationAngle: angle.value
            }
        }
    }
    Sheet {
        title: qsTr("Grounds")
        minimumCellWidth: 330

        Cell {
            label: qsTr("on the page")

            KFrame {
                width: 300
                height: 200

                UTWatermark { anchors.fill: parent; contentText: qsTr("Draft"); customOpacity: 0.4 }
            }
        }
        Cell {
            label: qsTr("on a picture")

            KImage {
                width: 300
                height: 200
                source: "qrc:/Resources/sample-landscape.png"

                UTWatermark { anchors.fill: parent; contentText: qsTr("Draft"); customOpacity: 0.4 }
            }
        }
    }
}
