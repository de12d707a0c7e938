pragma ComponentBehavior: Bound

import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A pane on a themed frame, sized by its content and padding.")
    controls: [
        PropertyColorSet { id: backgroundName; label: "backgroundColorSetName"; initial: "banner-style-announcement-background" },
        PropertyColorSet { id: borderName; label: "borderColorSetName"; initial: "focus-border" },
        PropertySlider { id: borderWidth; label: "borderWidth"; to: 8; value: 1 },
        PropertySlider { id: radius; label: "radius"; to: 40; value: 8 },
        PropertySlider { id: padding; label: "padding"; to: 48; value: 16 }
    ]

    Playground {
        KPane {
            backgroundColorSetName: backgroundName.colorSetName
            borderColorSetName: borderName.colorSetName
            borderWidth: borderWidth.value
            radius: radius.value
            padding: padding.value
            onImplicitWidthChanged: page.log(qsTr("implicitWidth is %1").arg(Math.round(implicitWidth)))

            KText { text: qsTr("The content of the pane"); textColorSetName: "banner-style-announcement-text" }
        }
    }
    Sheet {
        title: qsTr("Variants")
        minimumCellWidth: 190

        Cell {
            label: qsTr("default")
            note: qsTr("no border until one is named")
            stageColorSetName: "modal-secondary-background"

            KPane {
                KText { text: qsTr("Content") }
            }
        }
        Cell {
            label: "radius: 8"
            stageColorSetName: "modal-secondary-background"

            KPane {
                radius: 8

                KText { text: qsTr("Content") }
            }
        }
        Cell {
            label: qsTr("with a border")

            KPane {
                radius: 8
                borderColorSetName: "wx-default-border"
                borderWidth: 1

                KText { text: qsTr("Content") }
            }
        }
        Cell {
            label: "backgroundColorSetName"

            KPane {
                radius: 8
                backgroundColorSetName: "banner-style-success-background"

                KText { text: qsTr("Content"); textColorSetName: "banner-style-success-text" }
            }
        }
        Cell {
            label: "themeType: \"dark\""

            KPane {
                radius: 8
                themeType: "dark"
                backgroundColorSetName: "modal-primary-background"

                KText { text: qsTr("Content"); themeType: "dark" }
            }
        }
    }
}
