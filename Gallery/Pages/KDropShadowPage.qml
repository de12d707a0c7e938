import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A faint shadow to the right and below of an item; a shader effect.")
    controls: [
        PropertySlider { id: radius; label: "radius"; to: 24; value: 2 },
        PropertySlider { id: horizontalOffset; label: "horizontalOffset"; from: -16; to: 16; value: 2 },
        PropertySlider { id: verticalOffset; label: "verticalOffset"; from: -16; to: 16; value: 2 },
        PropertySwitch { id: strong; label: qsTr("In the colour of menus' shadows") }
    ]

    Playground {
        Item {
            width: 280
            height: 120

            KDropShadow {
                source: ground
                radius: radius.value
                horizontalOffset: horizontalOffset.value
                verticalOffset: verticalOffset.value
                onRadiusChanged: page.log(qsTr("%1 samples").arg(samples))

                Binding on color {
                    when: strong.value
                    value: shadowSet.color
                }
            }
            KRectangle {
                id: ground

                anchors.fill: parent
                radius: 12
                backgroundColorSetName: "modal-primary-background"
            }
        }
    }
    Sheet {
        title: qsTr("Variants")
        text: qsTr("It is shown behind a sibling here, which is its source: a shadow of its own parent would be a part of what it is the shadow of. It needs a graphics card or its imitation; the plain software renderer leaves it out.")
        minimumCellWidth: 190

        Cell {
            label: qsTr("default")
            note: qsTr("offsets 2, radius 2")

            Item {
                width: 120
                height: 56

                KDropShadow { source: plain }
                KRectangle { id: plain; anchors.fill: parent; radius: 8; backgroundColorSetName: "modal-primary-background" }
            }
        }
        Cell {
            label: "radius: 12"
            note: qsTr("in a stronger colour")

            Item {
                width: 120
                height: 56

                KDropShadow { source: soft; radius: 12; verticalOffset: 6; color: shadowSet.color }
                KRectangle { id: soft; anchors.fill: parent; radius: 8; backgroundColorSetName: "modal-primary-background" }
            }
        }
        Cell {
            label: qsTr("of an icon")
            note: qsTr("follows the shape")

            Item {
                width: 48
                height: 48

                KDropShadow { source: star; radius: 8; color: shadowSet.color }
                KSvgIcon {
                    id: star

                    height: 48
                    svgName: "favorite-filled"
                    svgColorSetName: "interactiveicon-tertiary-filled-favorite-icon-active"
                }
            }
        }
    }

    KRectangle {
        id: shadowSet

        visible: false
        backgroundColorSetName: "menulistbackground-tertiary-border"
    }
}
