pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Focus")
    description: qsTr("The settings of a focus ring, without showing one: the base of what does.")
    controls: [
        PropertySwitch { id: isRectangle; label: "isRectangle" },
        PropertySwitch { id: inner; label: "innerFocusBorder" },
        PropertySlider { id: cornerRadius; label: "cornerRadius"; to: 40; value: 8 },
        PropertySwitch { id: custom; label: "customRect" }
    ]

    Playground {
        stageHeight: 240

        KFrame {
            width: 320
            height: facts.height + 2 * Metrics.large
            radius: 8
            backgroundColorSetName: "modal-secondary-background"

            KBasicFocusItem {
                id: settings

                isRectangle: isRectangle.value
                innerFocusBorder: inner.value
                cornerRadius: cornerRadius.value
                customRect: custom.value ? Qt.rect(0, 0, 100, 50) : Qt.rect(0, 0, 0, 0)
                onExtraSpaceChanged: page.log(qsTr("extraSpace is %1").arg(extraSpace))
                onIsSemicircleChanged: page.log(qsTr("isSemicircle is %1").arg(isSemicircle))
            }
            Column {
                id: facts

                x: Metrics.large
                y: Metrics.large
                width: parent.width - 2 * x
                spacing: Metrics.small

                FactRow { titleWidth: 160; title: "extraSpace"; value: settings.extraSpace.toString() }
                FactRow { titleWidth: 160; title: "isSemicircle"; value: settings.isSemicircle.toString() }
                FactRow { titleWidth: 160; title: "isCustomRect"; value: settings.isCustomRect.toString() }
                FactRow { titleWidth: 160; title: "isExtraSmall"; value: String(settings.isExtraSmall) }
                FactRow { titleWidth: 160; title: "designatedParent"; value: String(settings.designatedParent) }
                FactRow { titleWidth: 160; title: "themeType"; value: settings.themeType }
            }
        }
    }
    Sheet {
        title: "RectangularCorner"
        text: qsTr("Corners that are drawn square, as a mask.")
        minimumCellWidth: 112

        Repeater {
            model: [
                { name: "None", value: KBasicFocusItem.None }, { name: "TopLeft", value: KBasicFocusItem.TopLeft },
                { name: "TopRight", value: KBasicFocusItem.TopRight }, { name: "BottomLeft", value: KBasicFocusItem.BottomLeft },
                { name: "BottomRight", value: KBasicFocusItem.BottomRight }
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData.name
                note: modelData.value

                OutlineCanvas { width: 80; height: 48; shape: OutlineCanvas.MixedCorners; corners: cell.modelData.value }
            }
        }
    }
}
