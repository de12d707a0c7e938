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
        PropertyColorSet { id: colorSet; label: "svgColorSetName"; initial: "text-primary" },
        PropertySwitch { id: paused; label: "paused" }
    ]

    Playground {
        KSvgSequenceAnimated {
            width: 64
            height: 64
            imagePrefixName: "audio-wave-"
            svgColorSetName: colorSet.colorSetName
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

            Wave { frameCount: 4 }
        }
        Cell {
            label: qsTr("one frame")

            Wave {}
        }
        Cell {
            label: "svgColorSetName"
            note: "hyperlink-accent-text"

            Wave { frameCount: 4; svgColorSetName: "hyperlink-accent-text" }
        }
        Cell {
            label: "frameDuration: 600"

            Wave { frameCount: 4; frameDuration: 600 }
        }
    }

    component Wave: KSvgSequenceAnimated {
        width: 32
        height: 32
        imagePrefixName: "audio-wave-"
        svgColorSetName: "text-primary"
        running: !App.animationsDisabled
    }
}
