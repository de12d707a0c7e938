pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("Two icon buttons in one pill, lying or standing, for panels and on top of a video.")
    controls: [
        PropertySwitch { id: horizontal; label: "horizontal"; value: true },
        PropertySwitch { id: isOverlay; label: "isOverlay" },
        PropertySwitch { id: isSmallSize; label: "isSmallSize" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTDualIconButton {
            horizontal: horizontal.value
            isOverlay: isOverlay.value
            isSmallSize: isSmallSize.value
            enabled: enabledSwitch.value
            leftIconName: "zoom-in-bold"
            leftAccessibleName: qsTr("Zoom in")
            rightIconName: "zoom-out-bold"
            rightAccessibleName: qsTr("Zoom out")
            onLeftClicked: page.log("leftClicked")
            onRightClicked: page.log("rightClicked")
        }
    }
    Sheet {
        title: qsTr("Looks")
        minimumCellWidth: 150

        Repeater {
            model: [0, 1, 2, 3, 4, 5, 6, 7].map(i => ({ lies: i < 4, overlay: (i & 2) > 0, small: (i & 1) > 0 }))

            Cell {
                id: cell

                required property var modelData

                label: modelData.lies ? "horizontal" : "horizontal: false"
                note: [modelData.overlay ? "isOverlay" : "", modelData.small ? "isSmallSize" : ""].filter(Boolean).join(", ")
                stageColorSetName: modelData.overlay ? "closedcaption-background-dark" : "transparent"

                UTDualIconButton {
                    horizontal: cell.modelData.lies
                    isOverlay: cell.modelData.overlay
                    isSmallSize: cell.modelData.small
                    leftIconName: cell.modelData.lies ? "previous-bold" : "zoom-in-bold"
                    leftAccessibleName: cell.modelData.lies ? qsTr("Previous") : qsTr("Zoom in")
                    rightIconName: cell.modelData.lies ? "next-bold" : "zoom-out-bold"
                    rightAccessibleName: cell.modelData.lies ? qsTr("Next") : qsTr("Zoom out")
                }
            }
        }
        Cell {
            label: "enabled: false"

            UTDualIconButton {
                enabled: false
                leftIconName: "previous-bold"
                leftAccessibleName: qsTr("Previous")
                rightIconName: "next-bold"
                rightAccessibleName: qsTr("Next")
            }
        }
    }
}
