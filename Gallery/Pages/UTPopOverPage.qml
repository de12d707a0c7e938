pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import UiElements 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Pop-overs")
    description: qsTr("A balloon in a window of its own that points at an item.")
    controls: [
        PropertyChoice { id: anchor; label: "arrowAnchor"; options: ["None", "Top", "Bottom", "Left", "Right"]; currentIndex: 1 },
        PropertyChoice {
            id: alignment
            label: "arrowAlignment"
            options: ["LeftAlignment", "CenterAlignment", "RightAlignment", "TopAlignment", "BottomAlignment"]
            currentIndex: 1
        },
        PropertyChoice { id: size; label: "popOverSize"; options: ["Small", "Medium"] },
        PropertySlider { id: offset; label: "arrowOffset"; from: -80; to: 80; value: 0 },
        PropertySlider { id: margin; label: "popOverMargin"; to: 24; value: 2 },
        PropertySwitch { id: arrow; label: "arrowVisible"; value: true },
        PropertySwitch { id: activation; label: "showWithActive"; value: true },
        PropertySwitch { id: automatic; label: "automaticClose"; value: true }
    ]

    Playground {
        UTPillButton {
            text: popOver.active ? qsTr("Close the pop-over") : qsTr("Open a pop-over")
            onClicked: popOver.active ? popOver.hidePopOver() : popOver.showPopOver()

            UTPopOver {
                id: popOver

                arrowAnchor: UTPopOverEnum[anchor.value]
                arrowAlignment: UTPopOverEnum[alignment.value]
                popOverSize: UTPopOverEnum[size.value]
                arrowOffset: offset.value
                popOverMargin: margin.value
                arrowVisible: arrow.value
                showWithActive: activation.value
                automaticClose: automatic.value
                accessibleName: qsTr("Notifications")
                content: notification
                onActiveChanged: page.log(active ? qsTr("active") : qsTr("not active"))
                onPopUpWindowCreated: page.log("popUpWindowCreated")
                onPopoverWindowActiveChanged: active => page.log("popoverWindowActiveChanged(%1)".arg(active))
                onPopoverEscapePressed: page.log("popoverEscapePressed")
            }
        }
    }
    Sheet {
        title: qsTr("On every side")

        Repeater {
            model: ["Top", "Bottom", "Left", "Right"]

            Cell {
                id: sideCell

                required property string modelData

                label: "arrowAnchor: " + modelData

                UTPillButton {
                    text: sideCell.modelData
                    buttonStyle: UTButtonStyle.Secondary
                    buttonSize: UTButtonSize.M
                    onClicked: sidePopOver.active = !sidePopOver.active

                    UTPopOver {
                        id: sidePopOver

                        arrowAnchor: UTPopOverEnum[sideCell.modelData]
                        accessibleName: qsTr("Notifications")
                        content: notification
                    }
                }
            }
        }
    }
    Sheet {
        title: qsTr("Closing with a delay")

        Cell {
            label: "hidePopOver(true)"
            note: qsTr("stays while the pointer is over it")

            UTPillButton {
                text: qsTr("Point here")
                buttonStyle: UTButtonStyle.Secondary
                buttonSize: UTButtonSize.M
                onHoveredChanged: hovered ? hoverPopOver.showPopOver() : hoverPopOver.hidePopOver(true)

                UTPopOver {
                    id: hoverPopOver

                    showWithActive: false
                    automaticClose: false
                    content: KText {
                        topPadding: 8
                        bottomPadding: 8
                        text: qsTr("Gone half a second after the pointer.")
                        textColorSetName: "label-primary-text"
                    }
                }
            }
        }
    }

    Sheet {
        title: qsTr("Where the arrow sits")
        text: qsTr("Small and medium. Where the arrow points, there is the middle of the target.")
        minimumCellWidth: 200

        Repeater {
            model: [
                { anchor: "Top", alignment: "LeftAlignment" },
                { anchor: "Top", alignment: "CenterAlignment" },
                { anchor: "Top", alignment: "RightAlignment" },
                { anchor: "Bottom", alignment: "LeftAlignment" },
                { anchor: "Bottom", alignment: "CenterAlignment" },
                { anchor: "Bottom", alignment: "RightAlignment" },
                { anchor: "Left", alignment: "TopAlignment" },
                { anchor: "Left", alignment: "CenterAlignment" },
                { anchor: "Left", alignment: "BottomAlignment" },
                { anchor: "Right", alignment: "TopAlignment" },
                { anchor: "Right", alignment: "CenterAlignment" },
                { anchor: "Right", alignment: "BottomAlignment" },
                { anchor: "None", alignment: "CenterAlignment" }
            ]

            Cell {
                id: shapeCell

                required property var modelData

                label: modelData.anchor === "None" ? "None" : "%1, %2".arg(modelData.anchor).arg(modelData.alignment)
                stageHeight: 104
                stageColorSetName: "modal-secondary-background"

                Row {
                    spacing: Metrics.small

                    Repeater {
                        model: ["Small", "Medium"]

                        KBalloon {
                            id: shape

                            required property string modelData
                            readonly property bool isBeside: arrowAnchor === UTPopOverEnum.Left || arrowAnchor === UTPopOverEnum.Right

                            UTPopOverData.arrowVisible: true
                            UTPopOverData.size: UTPopOverEnum[modelData]

                            width: 68 + (isBeside ? arrowSize : 0)
                            height: 56 + (isBeside ? 0 : arrowSize)
                            arrowAnchor: UTPopOverEnum[shapeCell.modelData.anchor]
                            arrowAlignment: UTPopOverEnum[shapeCell.modelData.alignment]
                            arrowSize: UTPopOverData.arrowSize
                            radius: UTPopOverData.radius
                            backgroundColor: (ThemeManager.globalTheme, App.getColorSet("popover-primary-background").normal)
                            borderColor: (ThemeManager.globalTheme, App.getColorSet("list-header-outline-secondary").normal)

                            GalleryText {
                                anchors.centerIn: parent
                                text: shape.modelData
                                font: FontConstants.tagLabelTertiary
                            }
                        }
                    }
                }
            }
        }
    }

    Component {
        id: notification

        FocusScope {
            implicitWidth: column.implicitWidth + 32
            implicitHeight: column.implicitHeight + 32

            Column {
                id: column

                x: 16
                y: 16
                spacing: 12

                GalleryText {
                    width: parent.width
                    text: qsTr("Notifications")
                    font: FontConstants.subheaderPrimary
                }
                GalleryText {
                    width: 220
                    text: qsTr("Sounds are off until tomorrow morning.")
                    wrapMode: Text.Wrap
                }
                UTPillButton {
                    anchors.left: parent.left
                    text: qsTr("Turn on now")
                    buttonSize: UTButtonSize.S
                    focus: true
                    onClicked: page.log(qsTr("clicked in the pop-over"))
                }
            }
        }
    }
}
