import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

// Spinners as readers find and hear them. What decorates is not for readers.
Window {
    width: 320
    height: 200
    visible: true
    title: "Spinners"

    Column {
        UTSpinner {
            spinnerType: UTSpinner.Progress
            currentValue: 40.7
            isTextChangedSayEnabled: false
            UTAccessible.info.description: "Sending the file"
        }
        UTSpinner {
            id: waiting

            visible: false
            spinnerType: UTSpinner.Waiting
        }
        UTLabel { text: "A label" }
        Action {
            Accessible.name: "Step"
            focus: true
            onTriggered: {
                if (waiting.visible)
                    waiting.UTAccessible.info.description = "Waiting for an answer";
                waiting.visible = true;
            }
        }
        UTDynamicResource { width: 30; height: 30; imageSource: "qrc:/Resources/sample-landscape.png" }
    }
    UTWatermark { anchors.fill: parent; contentText: "Confidential" }
}
