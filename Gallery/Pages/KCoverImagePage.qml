import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("The cover of a space or a person, as its controller gives it.")
    controls: [
        PropertySwitch { id: has; label: "controller.imageSource"; value: true }
    ]

    Playground {
        KCoverImage {
            controller.imageSource: has.value ? "qrc:/Resources/sample-landscape.png" : ""
        }
    }
    Sheet {
        title: qsTr("Sizes")

        Cell {
            label: qsTr("as it is")

            KCoverImage { controller.imageSource: "qrc:/Resources/sample-landscape.png" }
        }
        Cell {
            label: qsTr("small")

            KCoverImage { width: 48; height: 48; controller.imageSource: "qrc:/Resources/sample-landscape.png" }
        }
    }
}
