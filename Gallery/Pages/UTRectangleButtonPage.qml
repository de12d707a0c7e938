pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var sizes: ["XL", "L", "M", "S", "XS", "XXS", "XXXS"]
    readonly property string longText: qsTr("Share a window, a screen or a file")

    category: qsTr("Buttons")
    description: qsTr("A rectangular button with an icon before its label, which may take several lines.")
    controls: [
        PropertyText { id: text; label: "text"; value: page.longText },
        PropertyText { id: icon; label: "iconName"; value: "share-screen-bold" },
        PropertyChoice { id: size; label: "buttonSize"; options: page.sizes; currentIndex: 3 },
        PropertySwitch { id: singleLine; label: "singleLine" },
        PropertySlider { id: width; label: "width"; from: 48; to: 400; value: 200 },
        PropertySwitch { id: checkable; label: "checkable" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTRectangleButton {
            width: width.value
            text: text.value
            iconName: icon.value
            buttonSize: UTButtonSize[size.value]
            singleLine: singleLine.value
            checkable: checkable.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
            onToggled: page.log(checked ? qsTr("toggled, checked") : qsTr("toggled, not checked"))
        }
    }
    Sheet {
        title: qsTr("Sizes")
        minimumCellWidth: 150

        Repeater {
            model: page.sizes

            Cell {
                id: sizeCell

                required property string modelData

                label: modelData

                UTRectangleButton {
                    text: qsTr("Share")
                    iconName: "share-screen-bold"
                    buttonSize: UTButtonSize[sizeCell.modelData]
                }
            }
        }
    }
    Sheet {
        title: qsTr("States")
        text: qsTr("Point at one, press it, or move the focus to it for the others.")

        Cell { label: qsTr("normal"); UTRectangleButton { text: qsTr("Share"); buttonSize: UTButtonSize.M } }
        Cell { label: qsTr("checked"); UTRectangleButton { text: qsTr("Share"); buttonSize: UTButtonSize.M; checkable: true; checked: true } }
        Cell { label: qsTr("disabled"); UTRectangleButton { text: qsTr("Share"); iconName: "share-screen-bold"; buttonSize: UTButtonSize.M; enabled: false } }
    }
    Sheet {
        title: qsTr("Length")
        minimumCellWidth: 220

        Repeater {
            model: [false, true]

            Cell {
                id: lengthCell

                required property bool modelData

                label: "singleLine: %1".arg(modelData)

                UTRectangleButton {
                    width: 160
                    text: page.longText
                    iconName: "share-screen-bold"
                    buttonSize: UTButtonSize.M
                    singleLine: lengthCell.modelData
                }
            }
        }
    }
}
