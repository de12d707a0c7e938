pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("Where an item ends, and where it lies on the screen.")
    controls: [
        PropertySlider { id: itemY; label: "y"; to: 60; value: 20 },
        PropertySlider { id: itemHeight; label: "implicitHeight"; from: 20; to: 120; value: 60 }
    ]

    Playground {
        Item {
            width: 280
            height: 200

            KFrame {
                id: box

                y: itemY.value
                width: parent.width
                height: implicitHeight
                implicitHeight: itemHeight.value
                radius: 8
                backgroundColorSetName: "button-block-background"
                onYChanged: page.log("bottomY: %1".arg(LayoutUtils.bottomY(box)))
            }
            KSeparator {
                y: LayoutUtils.bottomY(box)
                backgroundColorSetName: "global-focus-outline"
            }
            KText {
                y: LayoutUtils.bottomY(box) + Metrics.tiny
                text: "bottomY: %1".arg(LayoutUtils.bottomY(box))
            }
        }
    }
    Sheet {
        title: "globalRect"
        text: qsTr("In the coordinates of the screen; read when the button is pressed.")

        Cell {
            label: qsTr("of the box above")

            UTPillButton {
                text: qsTr("Read it")
                buttonStyle: UTButtonStyle.Secondary
                buttonSize: UTButtonSize.L
                onClicked: page.log("globalRect: %1".arg(LayoutUtils.globalRect(box)))
            }
        }
    }
}
