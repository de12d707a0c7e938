pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A rectangle with a border, which is drawn only when a colour set is named for it.")
    controls: [
        PropertyColorSet { id: borderName; label: "borderColorSetName"; initial: "wx-default-border" },
        PropertySwitch { id: unnamed; label: qsTr("borderColorSetName: \"\"") },
        PropertySlider { id: borderWidth; label: "borderWidth"; to: 12; value: 1 },
        PropertySlider { id: radius; label: "radius"; to: 60; value: 8 }
    ]

    Playground {
        KFrame {
            width: 280
            height: 120
            radius: radius.value
            borderWidth: borderWidth.value
            borderColorSetName: unnamed.value ? "" : borderName.colorSetName
        }
    }
    Sheet {
        title: qsTr("Border")

        Cell {
            label: qsTr("default")

            KFrame { width: 96; height: 48 }
        }
        Cell {
            label: "borderWidth: 3"

            KFrame { width: 96; height: 48; radius: 8; borderWidth: 3 }
        }
        Cell {
            label: "borderColorSetName: \"\""
            note: qsTr("no border, whatever borderWidth")
            stageColorSetName: "modal-secondary-background"

            KFrame { width: 96; height: 48; radius: 8; borderWidth: 5; borderColorSetName: "" }
        }
        Cell {
            label: "radius: 24"

            KFrame { width: 96; height: 48; radius: 24; borderWidth: 2; borderColorSetName: "focus-border" }
        }
    }
    Sheet {
        title: qsTr("States")
        minimumCellWidth: 100

        Repeater {
            model: ExampleStates.all

            Cell {
                id: cell

                required property StateRecord modelData

                label: modelData.name

                KFrame {
                    width: 76
                    height: 40
                    radius: 6
                    controlsTarget: cell.modelData
                    backgroundColorSetName: "textinput-background"
                    borderColorSetName: "textinput-border"
                }
            }
        }
    }
}
