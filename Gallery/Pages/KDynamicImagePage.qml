import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A picture that shows a spinner until it is there.")
    controls: [
        PropertySwitch { id: loaded; label: "image.source"; value: true },
        PropertySwitch { id: spinner; label: "showSpinner"; value: true },
        PropertySwitch { id: mirrored; label: "mirrorEnabled" }
    ]

    Playground {
        KDynamicImage {
            width: 240
            height: 160
            showSpinner: spinner.value
            mirrorEnabled: mirrored.value
            image.source: loaded.value ? "qrc:/Resources/sample-landscape.png" : ""
        }
    }
    Sheet {
        title: qsTr("States")

        Cell {
            label: qsTr("loaded")

            KDynamicImage { width: 96; height: 64; image.source: "qrc:/Resources/sample-landscape.png" }
        }
        Cell {
            label: qsTr("loading")

            KDynamicImage { width: 96; height: 64; showSpinner: !App.animationsDisabled }
        }
        Cell {
            label: qsTr("loading, without spinner")

            KDynamicImage { width: 96; height: 64; showSpinner: false }
        }
        Cell {
            label: qsTr("fallback")

            KDynamicImage { width: 96; height: 64; image.source: "image://dynamic/?imageProviderUrl=&isDark=false&fallbackImage=qrc:/Resources/empty-inbox.svg" }
        }
        Cell {
            label: "mirrorEnabled"

            KDynamicImage { width: 96; height: 64; mirrorEnabled: true; image.source: "qrc:/Resources/sample-landscape.png" }
        }
    }
}
