pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A rectangle painted from a colour set, in the colour that fits the state of its target.")
    controls: [
        PropertyColorSet { id: backgroundName; label: "backgroundColorSetName"; initial: "checkbox-checked-background" },
        PropertySlider { id: radius; label: "radius"; to: 60; value: 12 },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true },
        PropertySwitch { id: darkSwitch; label: qsTr("themeType: \"dark\"") }
    ]

    Playground {
        KRectangle {
            width: 280
            height: 120
            radius: radius.value
            enabled: enabledSwitch.value
            themeType: darkSwitch.value ? "dark" : "global"
            backgroundColorSetName: backgroundName.colorSetName
            onColorChanged: page.log(qsTr("color is %1").arg(color.toString()))
        }
    }
    Sheet {
        title: qsTr("States")
        text: qsTr("The state is that of controlsTarget, by default the rectangle itself.")
        minimumCellWidth: 100

        Repeater {
            model: ExampleStates.all

            Cell {
                id: cell

                required property StateRecord modelData

                label: modelData.name

                KRectangle {
                    width: 76
                    height: 48
                    radius: 8
                    controlsTarget: cell.modelData
                    backgroundColorSetName: "checkbox-checked-background"
                }
            }
        }
    }
    Sheet {
        title: qsTr("Colour sets")

        Repeater {
            model: [
                "background-primary", "button-primary-background", "checkbox-checked-background",
                "button-cancel-fill-background", "button-join-fill-background", "button-message-fill-background",
                "banner-style-announcement-background", "transparent"
            ]

            Cell {
                id: setCell

                required property string modelData

                label: modelData
                note: modelData === "background-primary" ? qsTr("the default") : ""
                stageColorSetName: "modal-secondary-background"

                KRectangle {
                    width: 96
                    height: 48
                    radius: 8
                    backgroundColorSetName: setCell.modelData
                }
            }
        }
    }
    Sheet {
        title: qsTr("Theme types")
        text: qsTr("\"dark\" is for what always lies on a dark ground.")

        Repeater {
            model: ["global", "light", "dark", "highContrast"]

            Cell {
                id: themeCell

                required property string modelData

                label: modelData

                KRectangle {
                    width: 96
                    height: 48
                    radius: 8
                    themeType: themeCell.modelData
                    backgroundColorSetName: "checkbox-checked-background"
                }
            }
        }
    }
}
