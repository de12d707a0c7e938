pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("An icon in one colour: that of a colour set for the state of its target, or a fixed one.")
    controls: [
        PropertyChoice { id: name; label: "svgName"; options: ["settings-bold", "alert-filled", "chat-bold", "audio-call-filled", "check-bold", "favorite-filled"] },
        PropertyColorSet { id: colorName; label: "svgColorSetName"; initial: "hyperlink-accent-text" },
        PropertySlider { id: size; label: "height"; from: 8; to: 128; value: 64 },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        KSvgIcon {
            svgName: name.value
            svgColorSetName: colorName.colorSetName
            height: size.value
            enabled: enabledSwitch.value
            onSourceColorChanged: page.log(qsTr("sourceColor is %1").arg(sourceColor.toString()))
        }
    }
    Sheet {
        title: qsTr("Sizes")
        minimumCellWidth: 96

        Repeater {
            model: [12, 16, 20, 24, 32, 48]

            Cell {
                id: sizeCell

                required property int modelData

                label: "height: %1".arg(modelData)
                note: modelData === 12 ? qsTr("the default") : ""

                KSvgIcon { svgName: "chat-bold"; svgColorSetName: "text-primary"; height: sizeCell.modelData }
            }
        }
    }
    Sheet {
        title: qsTr("States")
        minimumCellWidth: 100

        Repeater {
            model: ExampleStates.all

            Cell {
                id: stateCell

                required property StateRecord modelData

                label: modelData.name

                KSvgIcon {
                    svgName: "link-bold"
                    height: 24
                    controlsTarget: stateCell.modelData
                    svgColorSetName: "hyperlink-accent-text"
                }
            }
        }
    }
    Sheet {
        title: qsTr("Colours")

        Repeater {
            model: [
                "text-primary", "text-secondary", "label-error-text", "label-warning-text", "label-success-text",
                "interactiveicon-tertiary-filled-favorite-icon-active"
            ]

            Cell {
                id: colorCell

                required property string modelData

                label: modelData

                KSvgIcon { svgName: "alert-filled"; svgColorSetName: colorCell.modelData; height: 24 }
            }
        }
        Cell {
            label: "svgColor"
            note: qsTr("counts while no colour set is named")

            KSvgIcon { svgName: "alert-filled"; svgColor: fixed.color; height: 24 }
        }
        Cell {
            label: qsTr("without svgName")
            note: qsTr("takes room, paints nothing")

            KSvgIcon { svgColorSetName: "text-primary"; height: 24 }
        }
    }

    KText {
        id: fixed

        visible: false
        textColorSetName: "label-common-gray-text"
    }
}
