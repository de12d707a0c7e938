import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A flat shadow behind its parent that needs no shader and grows with the parent's size.")
    controls: [
        PropertySlider { id: offsetFactor; label: "offsetFactor"; to: 0.2; stepSize: 0.01; value: 0.04 },
        PropertySlider { id: radius; label: qsTr("radius of the parent"); to: 60; value: 12 }
    ]

    Playground {
        KRectangle {
            width: 280
            height: 120
            radius: radius.value
            backgroundColorSetName: "checkbox-checked-background"

            KDropShadowRect {
                offsetFactor: offsetFactor.value
                onOffsetChanged: page.log(qsTr("offset is %1").arg(offset.toFixed(1)))
            }
        }
    }
    Sheet {
        title: qsTr("Variants")
        minimumCellWidth: 190

        Cell {
            label: qsTr("default")
            note: qsTr("2 % of the shorter side")

            KRectangle {
                width: 120
                height: 80
                radius: 8
                backgroundColorSetName: "checkbox-checked-background"

                KDropShadowRect {}
            }
        }
        Cell {
            label: "offsetFactor: 0.1"

            KRectangle {
                width: 120
                height: 80
                radius: 8
                backgroundColorSetName: "checkbox-checked-background"

                KDropShadowRect { offsetFactor: 0.1 }
            }
        }
        Cell {
            label: "offset: 12"
            note: qsTr("set instead of computed")

            KRectangle {
                width: 120
                height: 80
                radius: 8
                backgroundColorSetName: "checkbox-checked-background"

                KDropShadowRect { offset: 12 }
            }
        }
    }
}
