import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Surfaces")
    description: qsTr("A gradient rounded at its top-left corner only, with another colour set behind the curve.")
    controls: [
        PropertySlider { id: cornerRadius; label: "cornerRadius"; to: 100; value: 32 },
        PropertyColorSet { id: behindName; label: "gradientPrimary0BackgroundColorSetName"; initial: "button-primary-background" },
        PropertyColorSet { id: startName; label: "gradientStartColourSetName"; initial: "checkbox-checked-background" },
        PropertyColorSet { id: endName; label: "gradientEndColourSetName"; initial: "indentationBar-success" }
    ]

    Playground {
        KGradientRectangleRoundCorner {
            width: 280
            height: 140
            cornerRadius: cornerRadius.value
            gradientPrimary0BackgroundColorSetName: behindName.colorSetName
            gradientStartColourSetName: startName.colorSetName
            gradientEndColourSetName: endName.colorSetName
            onCornerRadiusChanged: page.log(qsTr("cornerRadius is %1").arg(cornerRadius))
        }
    }
    Sheet {
        title: qsTr("Variants")
        minimumCellWidth: 190

        Cell {
            label: qsTr("default")
            note: qsTr("the page of a window below its header")
            stageColorSetName: "button-common-background"

            KGradientRectangleRoundCorner { width: 140; height: 80 }
        }
        Cell {
            label: "cornerRadius: 0"

            KGradientRectangleRoundCorner {
                width: 140
                height: 80
                cornerRadius: 0
                gradientPrimary0BackgroundColorSetName: "button-primary-background"
                gradientStartColourSetName: "checkbox-checked-background"
                gradientEndColourSetName: "indentationBar-success"
            }
        }
        Cell {
            label: "cornerRadius: 40"

            KGradientRectangleRoundCorner {
                width: 140
                height: 80
                cornerRadius: 40
                gradientPrimary0BackgroundColorSetName: "button-primary-background"
                gradientStartColourSetName: "checkbox-checked-background"
                gradientEndColourSetName: "indentationBar-success"
            }
        }
    }
}
