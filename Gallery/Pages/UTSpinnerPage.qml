import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A ring that shows how far something has come, or that it goes on.")
    controls: [
        PropertyChoice { id: type; label: "spinnerType"; options: ["Progress", "Loading", "Waiting"] },
        PropertySlider { id: value; label: "currentValue"; to: 100; value: 60 },
        PropertySlider { id: size; label: qsTr("width and height"); from: 16; to: 128; value: 64 },
        PropertySwitch { id: check; label: "completeCheckMarkEnabled"; value: true }
    ]

    Playground {
        UTSpinner {
            width: size.value
            height: size.value
            spinnerType: type.currentIndex
            completeCheckMarkEnabled: check.value
            sayAccessible: false
            isTextChangedSayEnabled: false
            onSpinnerCompleted: page.log("spinnerCompleted")

            Binding on currentValue {
                when: type.value !== "Waiting"
                value: value.value
            }
        }
    }
    Sheet {
        title: qsTr("Types and values")

        Cell {
            label: qsTr("Progress, %1 %").arg(0)

            UTSpinner { spinnerType: UTSpinner.Progress }
        }
        Cell {
            label: qsTr("Progress, %1 %").arg(30)

            UTSpinner { spinnerType: UTSpinner.Progress; currentValue: 30 }
        }
        Cell {
            label: qsTr("Progress, %1 %").arg(75)

            UTSpinner { spinnerType: UTSpinner.Progress; currentValue: 75 }
        }
        Cell {
            label: qsTr("Progress, %1 %").arg(100)

            UTSpinner { spinnerType: UTSpinner.Progress; currentValue: 100 }
        }
        Cell {
            label: qsTr("Loading, %1 %").arg(40)

            UTSpinner { spinnerType: UTSpinner.Loading; currentValue: 40 }
        }
        Cell {
            label: qsTr("Waiting")

            Waiting {}
        }
        Cell {
            label: qsTr("larger")

            UTSpinner { width: 64; height: 64; spinnerType: UTSpinner.Progress; currentValue: 60 }
        }
        Cell {
            label: qsTr("%1 %, no check mark").arg(100)

            UTSpinner { spinnerType: UTSpinner.Progress; currentValue: 100; completeCheckMarkEnabled: false }
        }
    }

    // The component itself goes round whatever the user wishes about animations.
    component Waiting: UTSpinner {
        spinnerType: UTSpinner.Waiting
        sayAccessible: false
        onCurrentValueChanged: {
            if (App.animationsDisabled)
                currentValue = 10;
        }
    }
}
