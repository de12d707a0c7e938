pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A turning spinner; visible it turns, hidden it rests upright.")
    controls: [
        PropertySwitch { id: visibleSwitch; label: "visible"; value: true },
        PropertySlider { id: duration; label: "rotateDuration"; from: 200; to: 4000; stepSize: 100; value: 1000 },
        PropertySlider { id: size; label: qsTr("width and height"); from: 12; to: 96; value: 64 }
    ]

    Playground {
        Spinner {
            width: size.value
            height: size.value
            visible: visibleSwitch.value
            rotateDuration: duration.value
            onStateChanged: page.log(qsTr("state is \"%1\"").arg(state))
        }
    }
    Sheet {
        title: qsTr("Sizes")

        Repeater {
            model: [16, 27, 48]

            Cell {
                id: cell

                required property int modelData

                label: "%1 × %1".arg(modelData)
                note: modelData === 16 ? qsTr("the default") : ""

                Spinner {
                    width: cell.modelData
                    height: cell.modelData
                }
            }
        }
    }
    Sheet {
        title: qsTr("Speed")

        Repeater {
            model: [500, 1000, 3000]

            Cell {
                id: speedCell

                required property int modelData

                label: "rotateDuration: %1".arg(modelData)
                note: modelData === 1000 ? qsTr("the default, in milliseconds") : ""

                Spinner {
                    width: 32
                    height: 32
                    rotateDuration: speedCell.modelData
                }
            }
        }
    }

    // The component itself turns whatever the user wishes about animations.
    component Spinner: KSvgSpinner {
        readonly property bool isResting: App.animationsDisabled

        function rest(): void {
            state = visible && !isResting ? "rotate" : "stopped";
        }

        // A state cannot be left while it is being entered.
        onStateChanged: Qt.callLater(rest)
        onIsRestingChanged: rest()
    }
}
