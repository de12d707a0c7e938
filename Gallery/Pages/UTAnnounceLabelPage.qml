import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("A text that is spoken when it changes.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Connected") },
        PropertySwitch { id: onChange; label: "isTextChangedSayEnabled"; value: true },
        PropertySwitch { id: delay; label: "delay" }
    ]

    Playground {
        UTAnnounceLabel {
            text: text.value
            isTextChangedSayEnabled: onChange.value
            delay: delay.value
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: qsTr("as it is")

            UTAnnounceLabel { text: qsTr("Connected"); isTextChangedSayEnabled: false }
        }
    }
}
