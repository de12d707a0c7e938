import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property string picture: "qrc:/Resources/sample-landscape.png"
    readonly property string film: MediaPolicy.encode("qrc:/Resources/coverImageSpinner@2x.gif", "qrc:/Resources/coverImageSpinnerDark@2x.gif")
    // A picture that is not there.
    readonly property string nowhere: MediaPolicy.encode("data:image/png;base64,")

    category: qsTr("Images")
    description: qsTr("A picture or film from elsewhere, in the variant for the theme, with a fallback.")
    controls: [
        PropertyChoice { id: kind; label: "imageSource"; options: [qsTr("direct"), qsTr("encoded"), qsTr("film"), qsTr("refused"), qsTr("none")] },
        PropertySwitch { id: spinner; label: "showSpinner"; value: true },
        PropertySwitch { id: mirrored; label: "mirrorEnabled" }
    ]

    Playground {
        UTDynamicResource {
            width: 240
            height: 160
            imageSource: [page.picture, MediaPolicy.encode(page.picture), page.film, page.nowhere, ""][kind.currentIndex]
            fallbackImage: "qrc:/Resources/empty-inbox.svg"
            showSpinner: spinner.value
            mirrorEnabled: mirrored.value
            onResourceLoaded: (width, height) => page.log("resourceLoaded(%1, %2)".arg(width).arg(height))
        }
    }
    Sheet {
        title: qsTr("Sources")
        text: qsTr("The fallback for a source that cannot be had is to be seen above; the host warns of each such source.")

        Cell {
            label: qsTr("direct")

            UTDynamicResource { width: 96; height: 64; imageSource: page.picture }
        }
        Cell {
            label: qsTr("encoded")

            UTDynamicResource { width: 96; height: 64; imageSource: MediaPolicy.encode(page.picture) }
        }
        Cell {
            label: qsTr("encoded, by theme")
            note: qsTr("another picture in a dark one")

            UTDynamicResource { width: 96; height: 64; imageSource: MediaPolicy.encode(page.picture, "qrc:/Resources/empty-inbox.svg") }
        }
        Cell {
            label: qsTr("film")

            UTDynamicResource { width: 54; height: 54; imageSource: page.film }
        }
        Cell {
            label: qsTr("none")

            UTDynamicResource { width: 96; height: 64 }
        }
    }
}
