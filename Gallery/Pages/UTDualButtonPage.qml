pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var styles: ["Secondary", "Primary", "Ghost", "Accent", "Join", "Cancel", "Message", "OverLay"]

    category: qsTr("Buttons")
    description: qsTr("Two buttons in one pill with a text in one of them, for panels and on top of a video.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Recording") },
        PropertyChoice { id: style; label: "buttonStyle"; options: page.styles },
        PropertySwitch { id: isOverlay; label: "isOverlay" },
        PropertySwitch { id: enableResize; label: "enableResize"; value: true },
        PropertySwitch { id: isTextInRight; label: "isTextInRight" },
        PropertySwitch { id: isSmallSize; label: "isSmallSize" },
        PropertySwitch { id: middle; label: "middleIconName: \"lock-bold\"" },
        PropertySwitch { id: isLeftChecked; label: "isLeftChecked" },
        PropertySwitch { id: isRightChecked; label: "isRightChecked" }
    ]

    Playground {
        UTDualButton {
            text: text.value
            buttonStyle: UTButtonStyle[style.value]
            isOverlay: isOverlay.value
            enableResize: enableResize.value
            isTextInRight: isTextInRight.value
            isSmallSize: isSmallSize.value
            isLeftChecked: isLeftChecked.value
            isRightChecked: isRightChecked.value
            leftIconName: "record-bold"
            middleIconName: middle.value ? "lock-bold" : ""
            rightIconName: "arrow-down-bold"
            rightAccessibleName: qsTr("Recording options")
            onLeftClicked: page.log("leftClicked")
            onRightClicked: page.log("rightClicked")
        }
    }
    Sheet {
        title: qsTr("In use")
        minimumCellWidth: 200

        Cell {
            id: zoomCell

            property int zoom: 100

            label: "enableResize: false"
            note: qsTr("press: the pill keeps its width")

            UTDualButton {
                text: qsTr("%1 %").arg(zoomCell.zoom)
                enableResize: false
                leftIconName: "minus-bold"
                leftAccessibleName: qsTr("Zoom out")
                rightIconName: "plus-bold"
                rightAccessibleName: qsTr("Zoom in")
                onLeftClicked: zoomCell.zoom = Math.max(10, zoomCell.zoom - 10)
                onRightClicked: zoomCell.zoom += 10
            }
        }
        Cell {
            label: "isTextInRight"

            UTDualButton {
                text: qsTr("Everyone")
                isTextInRight: true
                leftIconName: "share-screen-bold"
                leftAccessibleName: qsTr("Share")
                middleIconName: "people-bold"
            }
        }
        Cell {
            label: "isLeftChecked"

            UTDualButton {
                text: qsTr("Locked")
                isLeftChecked: true
                leftIconName: "lock-bold"
                rightIconName: "arrow-down-bold"
                rightAccessibleName: qsTr("Who may join")
            }
        }
        Cell {
            label: "isSmallSize"

            UTDualButton {
                text: "12:34"
                isSmallSize: true
                leftIconName: "record-filled"
                rightIconName: "arrow-down-bold"
                rightIconSize: 12
                rightAccessibleName: qsTr("Recording options")
            }
        }
        Cell {
            label: "isOverlay"
            stageColorSetName: "closedcaption-background-dark"

            UTDualButton {
                text: qsTr("Recording")
                isOverlay: true
                leftIconName: "record-filled"
                rightIconName: "arrow-down-bold"
                rightAccessibleName: qsTr("Recording options")
            }
        }
        Cell {
            label: qsTr("elided")

            UTDualButton {
                width: 132
                text: qsTr("Share your screen")
                leftIconName: "share-screen-bold"
                rightIconName: "arrow-down-bold"
                rightAccessibleName: qsTr("Sharing options")
            }
        }
        Cell {
            label: "enabled: false"

            UTDualButton {
                enabled: false
                text: qsTr("Locked")
                leftIconName: "lock-bold"
                rightIconName: "arrow-down-bold"
                rightAccessibleName: qsTr("Who may join")
            }
        }
    }
    Sheet {
        title: qsTr("Styles")
        minimumCellWidth: 180

        Repeater {
            model: page.styles

            Cell {
                id: styleCell

                required property string modelData

                label: modelData
                stageColorSetName: modelData === "OverLay" ? "closedcaption-background-dark" : "transparent"

                UTDualButton {
                    text: qsTr("Share")
                    buttonStyle: UTButtonStyle[styleCell.modelData]
                    leftIconName: "share-screen-bold"
                    rightIconName: "arrow-down-bold"
                    rightAccessibleName: qsTr("Sharing options")
                }
            }
        }
    }
}
