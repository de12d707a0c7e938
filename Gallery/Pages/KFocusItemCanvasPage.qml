pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Focus")
    description: qsTr("Paints the three outlines of a focus ring, in the shape that a focus item asks for.")
    controls: [
        PropertySwitch { id: isRectangle; label: "isRectangle"; value: true },
        PropertySlider { id: cornerRadius; label: "cornerRadius"; to: 40; value: 8 },
        PropertySwitch { id: inner; label: "innerFocusBorder" },
        PropertySwitch { id: darkSwitch; label: qsTr("themeType: \"dark\"") }
    ]

    Playground {
        RingSample {
            width: 200
            height: 72
            settings: KBasicFocusItem {
                isRectangle: isRectangle.value
                cornerRadius: cornerRadius.value
                innerFocusBorder: inner.value
                themeType: darkSwitch.value ? "dark" : "global"
            }
        }
    }
    Sheet {
        title: qsTr("Shapes")
        text: qsTr("The inner line parts the ring from what it surrounds; the outer one is faint, but not in high contrast.")
        minimumCellWidth: 190

        Cell {
            label: qsTr("pill")

            RingSample { settings: KBasicFocusItem {} }
        }
        Cell {
            label: qsTr("rectangle")

            RingSample { settings: KBasicFocusItem { isRectangle: true } }
        }
        Cell {
            label: qsTr("rectangle, inside")

            RingSample { settings: KBasicFocusItem { isRectangle: true; innerFocusBorder: true } }
        }
        Cell {
            label: qsTr("square at the left")
            note: qsTr("at the right in a mirrored layout")

            RingSample {
                settings: KBasicFocusItem {
                    isSemicircle: false
                    cornerRadius: 12
                    rectangularCornerMask: KBasicFocusItem.TopLeft | KBasicFocusItem.BottomLeft
                }
            }
        }
        Cell {
            label: "themeType: \"dark\""
            stageColorSetName: "closedcaption-background-dark"

            RingSample { settings: KBasicFocusItem { isRectangle: true; themeType: "dark" } }
        }
    }

    component RingSample: Item {
        id: sample

        property KBasicFocusItem settings

        width: 120
        height: 40

        KRectangle {
            anchors.fill: parent
            radius: sample.settings.isSemicircle ? height / 2 : sample.settings.cornerRadius
            backgroundColorSetName: "button-ghost-active-background"
        }
        KFocusItemCanvas {
            anchors.fill: parent
            anchors.margins: -sample.settings.extraSpace
            focusItem: sample.settings
        }
    }
}
