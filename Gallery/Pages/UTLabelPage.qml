import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("A text with a tool tip.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Everyone in this space") },
        PropertyText { id: tip; label: "toolTipText"; value: qsTr("Twelve people") },
        PropertySwitch { id: nativeTip; label: "isTooltipNative"; value: true },
        PropertyColorSet { id: color; label: "textColorSetName"; initial: "label-primary-text" }
    ]

    Playground {
        UTLabel {
            text: text.value
            toolTipText: tip.value
            isTooltipNative: nativeTip.value
            textColorSetName: color.colorSetName
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: qsTr("as it is")

            UTLabel { text: qsTr("Twelve people") }
        }
        Cell {
            label: qsTr("in another colour")

            UTLabel { text: qsTr("Not sent"); textColorSetName: "label-error-text" }
        }
        Cell {
            label: qsTr("elided")

            UTLabel { width: 80; text: qsTr("Everyone in this space"); elide: Text.ElideRight }
        }
    }
}
