pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A plain button in the colours of colour sets of one's choice.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Retry") },
        PropertyColorSet { id: background; label: "backgroundColorSetName"; initial: "button-primary" },
        PropertyColorSet { id: textColor; label: "textColorSetName"; initial: "buttonText-primary" },
        PropertyColorSet { id: borderColor; label: "borderColorSetName"; initial: "wx-default-border" },
        PropertySlider { id: radius; label: "radius"; to: 20; value: 4 },
        PropertySlider { id: borderWidth; label: "borderWidth"; to: 6; value: 1 },
        PropertyChoice { id: alignment; label: "horizontalAlignment"; options: ["AlignLeft", "AlignRight", "AlignHCenter"]; currentIndex: 2 },
        PropertySwitch { id: isPressed; label: "isPressed" },
        PropertySwitch { id: isRectangle; label: "isRectangle" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        KButton {
            width: 160
            text: text.value
            tooltip: qsTr("Send the message again")
            backgroundColorSetName: background.colorSetName
            textColorSetName: textColor.colorSetName
            borderColorSetName: borderColor.colorSetName
            radius: radius.value
            borderWidth: borderWidth.value
            horizontalAlignment: [Text.AlignLeft, Text.AlignRight, Text.AlignHCenter][alignment.currentIndex]
            isPressed: isPressed.value
            isRectangle: isRectangle.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: qsTr("as it is")

            KButton { text: qsTr("Retry") }
        }
        Cell {
            label: qsTr("border and radius")

            KButton { text: qsTr("Retry"); borderColorSetName: "wx-default-border"; radius: 4 }
        }
        Cell {
            label: "isPressed"

            KButton { text: qsTr("Retry"); isPressed: true; radius: 4 }
        }
        Cell {
            label: qsTr("elided")

            KButton { width: 100; text: qsTr("A label that is too long"); radius: 4 }
        }
        Cell {
            label: qsTr("disabled")

            KButton { text: qsTr("Retry"); radius: 4; enabled: false }
        }
        Cell {
            label: qsTr("colours of its own")

            KButton { text: qsTr("Leave"); radius: 4; backgroundColorSetName: "button-cancel-fill-background"; borderColorSetName: "button-cancel-fill-border"; textColorSetName: "button-cancel-fill-text" }
        }
    }
}
