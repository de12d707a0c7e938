pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var colorStyles: [
        "Accent", "Cobalt", "Cyan", "Mint", "Lime", "Warning", "Gold", "Orange", "Pink", "Purple", "Violet", "Slate", "Share"
    ]
    readonly property var sizeStyles: ["Primary", "Secondary"]

    category: qsTr("Buttons")
    description: qsTr("A button that looks like a link, and can explain itself when it is clicked.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("What is this?") },
        PropertyChoice { id: colorStyle; label: "colorStyle"; options: page.colorStyles },
        PropertyChoice { id: sizeStyle; label: "sizeStyle"; options: page.sizeStyles },
        PropertySlider { id: width; label: "width"; from: 24; to: 240; value: 160 },
        PropertySwitch { id: cursor; label: "changeCursor"; value: true },
        PropertySwitch { id: clickTooltip; label: "enableClickTooltip" },
        PropertyText { id: content; label: "tooltipContent"; value: qsTr("Everyone who has the link can join the call.") },
        PropertySlider { id: tipWidth; label: "tooltipMaxWidth"; from: 80; to: 400; value: 216 },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTTextButton {
            width: Math.min(implicitWidth, width.value)
            text: text.value
            colorStyle: UTTextButtonEnum[colorStyle.value]
            sizeStyle: UTTextButtonEnum[sizeStyle.value]
            changeCursor: cursor.value
            enableClickTooltip: clickTooltip.value
            tooltipContent: content.value
            tooltipMaxWidth: tipWidth.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Colours")
        text: qsTr("They do not follow the names of the styles; applications rely on that.")

        Repeater {
            model: page.colorStyles

            Cell {
                id: colorCell

                required property string modelData

                label: modelData
                stageColorSetName: modelData === "Mint" ? "coachmarkteaching-background" : "transparent"

                UTTextButton { text: qsTr("Learn more"); colorStyle: UTTextButtonEnum[colorCell.modelData] }
            }
        }
    }
    Sheet {
        title: qsTr("Sizes and states")

        Cell { label: "Primary"; UTTextButton { text: qsTr("Learn more") } }
        Cell { label: "Secondary"; UTTextButton { text: qsTr("Learn more"); sizeStyle: UTTextButtonEnum.Secondary } }
        Cell { label: qsTr("disabled"); UTTextButton { text: qsTr("Learn more"); enabled: false } }
        Cell { label: qsTr("elided"); UTTextButton { width: 72; text: qsTr("Learn more about calls") } }
        Cell { label: "textColor, textFont"; UTTextButton { text: qsTr("Learn more"); textColor: "tomato"; textFont: FontConstants.subheaderPrimary } }
    }
}
