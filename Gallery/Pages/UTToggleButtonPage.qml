pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("Two icon buttons in one pill that are each on or off, or of which one is on.")
    controls: [
        PropertySwitch { id: isExclusive; label: "isExclusive" },
        PropertySwitch { id: isOverlay; label: "isOverlay" },
        PropertySwitch { id: isSmallSize; label: "isSmallSize" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTToggleButton {
            leftIcon: "microphone-bold"
            leftCheckedIcon: "microphone-muted-bold"
            leftAccessibleName: qsTr("Mute")
            rightIcon: "video-bold"
            rightCheckedIcon: "video-muted-bold"
            rightAccessibleName: qsTr("Stop video")
            isExclusive: isExclusive.value
            isOverlay: isOverlay.value
            isSmallSize: isSmallSize.value
            enabled: enabledSwitch.value
            leftButton.onToggled: page.log(leftButton.checked ? qsTr("left is checked") : qsTr("left is not checked"))
            rightButton.onToggled: page.log(rightButton.checked ? qsTr("right is checked") : qsTr("right is not checked"))
        }
    }
    Sheet {
        title: qsTr("Looks")
        minimumCellWidth: 180

        Repeater {
            model: [
                { label: qsTr("none checked") },
                { label: qsTr("one checked"), left: true },
                { label: qsTr("both checked"), left: true, right: true },
                { label: "isExclusive", right: true, exclusive: true },
                { label: "isSmallSize", left: true, small: true },
                { label: "enabled: false", left: true, disabled: true },
                { label: "isOverlay", left: true, overlay: true },
                { label: "isOverlay, isSmallSize", right: true, overlay: true, small: true }
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData.label
                stageColorSetName: modelData.overlay ? "closedcaption-background-dark" : "transparent"

                UTToggleButton {
                    leftIcon: cell.modelData.exclusive ? "list-bulleted-bold" : "microphone-bold"
                    leftCheckedIcon: cell.modelData.exclusive ? "" : "microphone-muted-bold"
                    leftAccessibleName: cell.modelData.exclusive ? qsTr("List") : qsTr("Mute")
                    leftButton.checked: cell.modelData.left ?? false
                    rightIcon: cell.modelData.exclusive ? "columns-bold" : "video-bold"
                    rightCheckedIcon: cell.modelData.exclusive ? "" : "video-muted-bold"
                    rightAccessibleName: cell.modelData.exclusive ? qsTr("Columns") : qsTr("Stop video")
                    rightButton.checked: cell.modelData.right ?? false
                    isExclusive: cell.modelData.exclusive ?? false
                    isOverlay: cell.modelData.overlay ?? false
                    isSmallSize: cell.modelData.small ?? false
                    enabled: !cell.modelData.disabled
                }
            }
        }
    }
}
