import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("An empty item: the root of a part of a component, which snapshot tooling finds by its type.")
    controls: [
        PropertySlider { id: opacitySlider; label: "opacity"; to: 1; stepSize: 0.05; value: 1 },
        PropertySlider { id: rotationSlider; label: "rotation"; from: -45; to: 45; value: 0 }
    ]

    Playground {
        KItem {
            width: parts.width
            height: parts.height
            opacity: opacitySlider.value
            rotation: rotationSlider.value
            onOpacityChanged: page.log(qsTr("opacity is %1").arg(opacity.toFixed(2)))

            Row {
                id: parts

                spacing: 12

                KSvgIcon { anchors.verticalCenter: parent.verticalCenter; height: 32; svgName: "components-filled"; svgColorSetName: "hyperlink-accent-text" }
                KText { anchors.verticalCenter: parent.verticalCenter; text: qsTr("What it holds moves and fades as one.") }
            }
        }
    }
    Sheet {
        title: qsTr("Variants")

        Cell {
            label: qsTr("empty")
            note: qsTr("takes room, paints nothing")

            KItem { width: 64; height: 32 }
        }
        Cell {
            label: qsTr("with children")

            KItem {
                width: 64
                height: 32

                KRectangle { anchors.fill: parent; radius: 6; backgroundColorSetName: "checkbox-checked-background" }
            }
        }
        Cell {
            label: qsTr("disabled")
            note: qsTr("and so is what it holds")

            KItem {
                width: 64
                height: 32
                enabled: false

                KRectangle { anchors.fill: parent; radius: 6; backgroundColorSetName: "checkbox-checked-background" }
            }
        }
    }
}
