pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var styles: ["Primary", "Secondary", "Ghost", "Accent", "Join", "OutlineJoin", "OutlineCancel", "CommonSecondary"]
    readonly property var sizes: ["XL", "L", "M", "S", "XS"]
    readonly property var lines: [
        "chips-outline-multiline-text-cobalt", "chips-outline-multiline-text-cyan", "chips-outline-multiline-text-lime",
        "chips-outline-multiline-text-mint", "chips-outline-multiline-text-orange", "chips-outline-multiline-text-pink",
        "chips-outline-multiline-text-purple", "chips-outline-multiline-text-violet"
    ]

    category: qsTr("Buttons")
    description: qsTr("A pill for one of several telephone lines, with the name of the line in a frame before its label.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Reception") },
        PropertyChoice { id: style; label: "buttonStyle"; options: page.styles; currentIndex: 1 },
        PropertyChoice { id: size; label: "buttonSize"; options: page.sizes },
        PropertySwitch { id: icon; label: "rightIcon: \"arrow-down-bold\""; value: true },
        PropertySwitch { id: showLine; label: "shouldDisplayLineDesignator"; value: true },
        PropertyText { id: line; label: "lineDesignatorText"; value: "2" },
        PropertyColorSet { id: lineColor; label: "lineDesignatorColorName"; initial: page.lines[0] },
        PropertySwitch { id: singleColor; label: "shouldUseSingleTextColor" },
        PropertySwitch { id: showBorder; label: "showBorder"; value: true },
        PropertyChoice { id: alignment; label: "textAlignment"; options: ["AlignLeft", "AlignHCenter", "AlignRight"] },
        PropertySlider { id: width; label: "width"; from: 60; to: 400; value: 200 },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTMultilinePillButton {
            width: width.value
            text: text.value
            buttonStyle: UTButtonStyle[style.value]
            buttonSize: UTButtonSize[size.value]
            rightIcon: icon.value ? "arrow-down-bold" : ""
            shouldDisplayLineDesignator: showLine.value
            lineDesignatorText: line.value
            lineDesignatorColorName: lineColor.colorSetName
            shouldUseSingleTextColor: singleColor.value
            showBorder: showBorder.value
            textAlignment: [Text.AlignLeft, Text.AlignHCenter, Text.AlignRight][alignment.currentIndex]
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    StateTable {
        title: qsTr("Styles")
        rows: page.styles
        delegate: UTMultilinePillButton {
            id: example

            required property string row
            required property StateRecord exampleState

            text: qsTr("Line")
            buttonStyle: UTButtonStyle[row]
            buttonSize: UTButtonSize.S
            enabled: exampleState.enabled
            activeFocusOnTab: false
            UTMultilinePillButtonData.eventData: UTEventData { source: example.exampleState }
        }
    }
    Sheet {
        title: qsTr("Sizes")
        minimumCellWidth: 240

        Repeater {
            model: page.sizes

            Cell {
                id: sizeCell

                required property string modelData

                label: modelData

                LinePill { buttonSize: UTButtonSize[sizeCell.modelData] }
            }
        }
    }
    Sheet {
        title: qsTr("Lines")
        minimumCellWidth: 240

        Repeater {
            model: page.lines

            Cell {
                id: lineCell

                required property string modelData
                required property int index

                label: modelData.split("-").pop()

                LinePill {
                    lineDesignatorText: String(lineCell.index + 1)
                    lineDesignatorColorName: lineCell.modelData
                }
            }
        }
        Cell { label: qsTr("a longer name"); LinePill { lineDesignatorText: qsTr("Home") } }
        Cell { label: qsTr("disabled"); LinePill { enabled: false } }
        Cell { label: "multiLineEnabled: false"; LinePill { multiLineEnabled: false } }
        Cell { label: "shouldUseSingleTextColor"; LinePill { shouldUseSingleTextColor: true } }
        Cell { label: "showBorder: false"; LinePill { showBorder: false } }
        Cell { label: qsTr("elided"); LinePill { width: 120; text: qsTr("Reception, second floor") } }
    }

    component LinePill: UTMultilinePillButton {
        text: qsTr("Reception")
        rightIcon: "arrow-down-bold"
        shouldDisplayLineDesignator: true
        lineDesignatorText: "2"
        buttonStyle: UTButtonStyle.Secondary
        buttonSize: UTButtonSize.M
    }
}
