import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A picture that moves: one file for each frame.")
    controls: [
        PropertySlider { id: frames; label: "frameCount"; from: 1; to: 4; value: 4 },
        PropertySlider { id: duration; label: "frameDuration"; from: 40; to: 1000; value: 200 },
        PropertySwitch { id: paused; label: "paused" }
    ]

    Playground {
        KSvgSequenceAnimated {
            width: 64
            height: 64
            imagePrefixName: "audio-wave-"
            frameCount: frames.value
            frameDuration: duration.value
            running: !App.animationsDisabled
            paused: running && paused.value
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: qsTr("four frames")

            KSvgSequenceAnimated { width: 32; height: 32; imagePrefixName: "audio-wave-"; frameCount: 4; running: !App.animationsDisabled }
        }
        Cell {
            label: qsTr("one frame")

            KSvgSequenceAnimated { width: 32; height: 32; imagePrefixName: "audio-wave-"; running: false }
        }
    }
}
