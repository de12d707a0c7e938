import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("An image that loads in the background, with a spinner meanwhile if wanted.")
    controls: [
        PropertyChoice { id: source; label: "source"; options: [qsTr("landscape"), qsTr("illustration"), qsTr("none")] },
        PropertySwitch { id: spinner; label: "hasSpinner"; value: true },
        PropertyChoice { id: fillMode; label: "fillMode"; options: ["PreserveAspectFit", "PreserveAspectCrop", "Stretch"] },
        PropertySwitch { id: mirror; label: "mirror" }
    ]

    readonly property url landscape: "qrc:/Resources/sample-landscape.png"
    readonly property url illustration: "qrc:/Resources/empty-inbox.svg"

    Playground {
        KFrame {
            width: 300
            height: 150
            backgroundColorSetName: "modal-secondary-background"

            KImage {
                anchors.fill: parent
                source: [page.landscape, page.illustration, ""][source.currentIndex]
                hasSpinner: spinner.value
                mirror: mirror.value
                fillMode: [Image.PreserveAspectFit, Image.PreserveAspectCrop, Image.Stretch][fillMode.currentIndex]
                onStatusChanged: page.log(qsTr("status is %1").arg(["Null", "Ready", "Loading", "Error"][status]))
                onIsSpinnerVisibleChanged: page.log(isSpinnerVisible ? qsTr("spinner shown") : qsTr("spinner gone"))
                Accessible.role: Accessible.Graphic
                Accessible.name: source.value
            }
        }
    }
    Sheet {
        title: qsTr("Variants")
        minimumCellWidth: 190

        Cell {
            label: "PreserveAspectFit"
            stageHeight: 120

            KImage { width: 140; height: 88; source: page.landscape; fillMode: Image.PreserveAspectFit }
        }
        Cell {
            label: "PreserveAspectCrop"

            KImage { width: 88; height: 88; source: page.landscape; fillMode: Image.PreserveAspectCrop }
        }
        Cell {
            label: "mirror: true"

            KImage { width: 140; height: 88; source: page.landscape; fillMode: Image.PreserveAspectFit; mirror: true }
        }
        Cell {
            label: "hasSpinner: true"
            note: qsTr("no source yet: the spinner waits with you")

            KImage { width: 88; height: 88; hasSpinner: true }
        }
        Cell {
            label: qsTr("disabled")
            note: qsTr("a picture does not change")

            KImage { width: 140; height: 88; source: page.landscape; fillMode: Image.PreserveAspectFit; enabled: false }
        }
    }
}
