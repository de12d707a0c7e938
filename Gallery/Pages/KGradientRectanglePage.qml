pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A rectangle with a gradient between two colour sets.")
    controls: [
        PropertyColorSet { id: startName; label: "gradientStartColourSetName"; initial: "indentationBar-success" },
        PropertyColorSet { id: endName; label: "gradientEndColourSetName"; initial: "checkbox-checked-background" },
        PropertyChoice { id: orientation; label: "gradientOrientation"; options: ["Vertical", "Horizontal"] },
        PropertySlider { id: radius; label: "radius"; to: 60; value: 12 }
    ]

    Playground {
        KGradientRectangle {
            width: 280
            height: 120
            radius: radius.value
            gradientStartColourSetName: startName.colorSetName
            gradientEndColourSetName: endName.colorSetName
            gradientOrientation: orientation.currentIndex === 0 ? Gradient.Vertical : Gradient.Horizontal
        }
    }
    Sheet {
        title: qsTr("Variants")
        minimumCellWidth: 190

        Cell {
            label: qsTr("default")
            note: qsTr("the quiet ground of a window")
            stageColorSetName: "button-common-background"

            KGradientRectangle { width: 140; height: 64 }
        }
        Cell {
            label: "Gradient.Vertical"

            KGradientRectangle {
                width: 140
                height: 64
                radius: 8
                gradientStartColourSetName: "checkbox-checked-background"
                gradientEndColourSetName: "indentationBar-success"
            }
        }
        Cell {
            label: "Gradient.Horizontal"
            note: qsTr("not mirrored from right to left")

            KGradientRectangle {
                width: 140
                height: 64
                radius: 8
                gradientOrientation: Gradient.Horizontal
                gradientStartColourSetName: "checkbox-checked-background"
                gradientEndColourSetName: "indentationBar-success"
            }
        }
        Cell {
            label: "radius: 32"

            KGradientRectangle {
                width: 140
                height: 64
                radius: 32
                gradientOrientation: Gradient.Horizontal
                gradientStartColourSetName: "indentationBar-success"
                gradientEndColourSetName: "checkbox-checked-background"
            }
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

                KGradientRectangle {
                    width: 76
                    height: 40
                    radius: 20
                    controlsTarget: cell.modelData
                    gradientOrientation: Gradient.Horizontal
                    gradientStartColourSetName: "indentationBar-success"
                    gradientEndColourSetName: "checkbox-checked-background"
                }
            }
        }
    }
}
