pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A button of a window's title bar; for use inside the library only.")
    controls: [
        PropertyChoice { id: type; label: "buttonType"; options: ["Minimize", "Maximize", "Restore", "Close"] },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        KRectangle {
            width: 200
            height: 32
            backgroundColorSetName: "globalHeader-container-background"

            WindowsButton {
                anchors.right: parent.right
                buttonType: type.currentIndex
                enabled: enabledSwitch.value
                onClicked: page.log("clicked")
            }
        }
    }
    Sheet {
        title: qsTr("Types")

        Repeater {
            model: ["Minimize", "Maximize", "Restore", "Close"]

            Cell {
                id: typeCell

                required property int index
                required property string modelData

                label: modelData
                stageColorSetName: "globalHeader-container-background"

                Row {
                    WindowsButton { buttonType: typeCell.index }
                    WindowsButton { buttonType: typeCell.index; enabled: false }
                }
            }
        }
    }
}
