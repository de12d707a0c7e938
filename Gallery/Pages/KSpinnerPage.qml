import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("An animated wheel in the middle of its parent, at rest while nobody sees it.")
    controls: [
        PropertySwitch { id: visibleSwitch; label: "visible"; value: true },
        PropertySlider { id: speed; label: "speed"; from: 0.25; to: 4; stepSize: 0.25; value: 1 }
    ]

    Playground {
        Item {
            width: 96
            height: 96

            KSpinner {
                visible: visibleSwitch.value
                paused: !visible || App.animationsDisabled
                speed: speed.value
                onPausedChanged: page.log(paused ? qsTr("paused") : qsTr("turns"))
            }
        }
    }
    Sheet {
        title: qsTr("On its ground")
        text: qsTr("The theme chooses between a picture for light and one for dark grounds.")

        Cell {
            label: "background-primary"

            KRectangle {
                width: 96
                height: 56
                radius: 8

                KSpinner { paused: !visible || App.animationsDisabled }
            }
        }
        Cell {
            label: "modal-secondary-background"

            KRectangle {
                width: 96
                height: 56
                radius: 8
                backgroundColorSetName: "modal-secondary-background"

                KSpinner { paused: !visible || App.animationsDisabled }
            }
        }
        Cell {
            label: "scale: 2"

            Item {
                width: 96
                height: 56

                KSpinner { scale: 2; paused: !visible || App.animationsDisabled }
            }
        }
    }
}
