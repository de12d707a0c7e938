import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property string film: "image://dynamic/?imageProviderUrl=" + MediaPolicy.encode("qrc:/Resources/coverImageSpinner@2x.gif", "qrc:/Resources/coverImageSpinnerDark@2x.gif")
        + "&isDark=" + ThemeManager.isDarkTheme + "&fallbackImage="

    category: qsTr("Images")
    description: qsTr("A film that the host fetches, with a spinner until it is there.")
    controls: [
        PropertySwitch { id: ratio; label: "keepAspectRatio"; value: true },
        PropertySlider { id: width; label: "width"; from: 40; to: 320; value: 160 }
    ]

    Playground {
        KDynamicAnimatedImage {
            width: width.value
            height: 120
            keepAspectRatio: ratio.value
            source: page.film
        }
    }
    Sheet {
        title: qsTr("States")

        Cell {
            label: qsTr("playing")

            KDynamicAnimatedImage { width: 64; height: 64; keepAspectRatio: true; source: page.film }
        }
        Cell {
            label: qsTr("nothing to fetch")

            KDynamicAnimatedImage { width: 64; height: 64; isSpinnerShown: !App.animationsDisabled }
        }
        Cell {
            label: qsTr("fallback")

            KDynamicAnimatedImage { width: 96; height: 64; source: "image://dynamic/?imageProviderUrl=&isDark=false&fallbackImage=qrc:/Resources/empty-inbox.svg" }
        }
        Cell {
            label: qsTr("cropped and mirrored")

            KDynamicAnimatedImage { width: 96; height: 32; source: page.film; image.fillMode: Image.PreserveAspectCrop; image.mirror: true }
        }
        Cell {
            label: "isSpinnerShown: false"

            KDynamicAnimatedImage { width: 64; height: 64; isSpinnerShown: false }
        }
    }
}
