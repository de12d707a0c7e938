pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Focus")
    description: qsTr("The outlines that focus rings are made of, and checkerboards.")
    controls: [
        PropertyChoice { id: shape; label: qsTr("Outline"); options: [qsTr("Pill"), qsTr("Rounded"), qsTr("Mixed corners")] },
        PropertySlider { id: width; label: "width"; from: 20; to: 400; value: 240 },
        PropertySlider { id: height; label: "height"; from: 20; to: 160; value: 96 },
        PropertySlider { id: offset; label: "offset"; from: -8; to: 4; value: 0 },
        PropertySlider { id: thickness; label: "lineThickness"; from: 1; to: 8; value: 2 },
        PropertySlider { id: radius; label: "radius"; from: -4; to: 48; value: 16 },
        PropertySlider { id: corners; label: "corners"; to: 15; value: 5 }
    ]

    Playground {
        OutlineCanvas {
            width: width.value
            height: height.value
            shape: shape.currentIndex
            offset: offset.value
            lineThickness: thickness.value
            radius: radius.value
            corners: corners.value
            onPainted: page.log(qsTr("painted"))
        }
    }
    Sheet {
        title: qsTr("Outlines")
        minimumCellWidth: 290

        Cell {
            label: "drawRoundedSidesOutline"

            OutlineCanvas { width: 140; height: 56 }
        }
        Cell {
            label: "drawRoundedSidesOutline"
            note: qsTr("higher than wide: radius 4 instead")

            OutlineCanvas { width: 40; height: 64 }
        }
        Cell {
            label: "drawRoundedCornerRectangleOutline"

            OutlineCanvas { width: 140; height: 56; shape: OutlineCanvas.RoundedCorners; radius: 12 }
        }
        Cell {
            label: "drawRoundedCornerRectangleOutline"
            note: "radius: -3"

            OutlineCanvas { width: 140; height: 56; shape: OutlineCanvas.RoundedCorners; radius: -3 }
        }
        Cell {
            label: "drawRectangularAndRoundCornerOutline"
            note: "TopLeft | BottomRight"

            OutlineCanvas { width: 140; height: 56; shape: OutlineCanvas.MixedCorners; radius: 20; corners: DrawUtils.RectangularCorners.TopLeft | DrawUtils.RectangularCorners.BottomRight }
        }
        Cell {
            label: "swapRectangularCornersLeftRight"
            note: "TopLeft | BottomRight"

            OutlineCanvas {
                width: 140
                height: 56
                shape: OutlineCanvas.MixedCorners
                radius: 20
                corners: DrawUtils.swapRectangularCornersLeftRight(DrawUtils.RectangularCorners.TopLeft | DrawUtils.RectangularCorners.BottomRight)
            }
        }
    }
    Sheet {
        title: "drawCheckerBoard"

        Repeater {
            model: [{ size: 4, radius: 0 }, { size: 8, radius: 8 }, { size: 16, radius: 32 }]

            Cell {
                id: cell

                required property var modelData

                label: "squareSize: %1".arg(modelData.size)
                note: "radius: %1".arg(modelData.radius)
                stageHeight: 104

                CheckerBoard { width: 112; height: 72; squareSize: cell.modelData.size; radius: cell.modelData.radius }
            }
        }
    }
}
