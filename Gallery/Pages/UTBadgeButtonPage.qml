pragma ComponentBehavior: Bound

import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A button with an icon, a text and a badge, each if there is one.")
    controls: [
        PropertyText { id: text; label: "buttonText"; value: qsTr("Replies") },
        PropertyText { id: badge; label: "badgeText"; value: "3" },
        PropertySlider { id: width; label: "maxTextWidth"; from: 8; to: 60; value: 14 },
        PropertySwitch { id: badgeVisible; label: "badgeVisible"; value: true },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTBadgeButton {
            iconName: "chat-bold"
            buttonText: text.value
            badgeText: badge.value
            maxTextWidth: width.value
            badgeVisible: badgeVisible.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: qsTr("all three")

            UTBadgeButton { iconName: "chat-bold"; buttonText: qsTr("Replies"); badgeText: "3" }
        }
        Cell {
            label: qsTr("icon and badge")

            UTBadgeButton { iconName: "chat-bold"; badgeText: "12"; tooltip: qsTr("Replies") }
        }
        Cell {
            label: qsTr("text and badge")

            UTBadgeButton { buttonText: qsTr("Replies"); badgeText: "3" }
        }
        Cell {
            label: qsTr("a long number")

            UTBadgeButton { iconName: "chat-bold"; buttonText: qsTr("Replies"); badgeText: "99+"; maxTextWidth: 32 }
        }
        Cell {
            label: qsTr("on a quiet ground")

            UTBadgeButton { iconName: "chat-bold"; buttonText: qsTr("Replies"); badgeText: "3"; backgroundColorSetName: "button-ghost-background" }
        }
        Cell {
            label: qsTr("elided")

            UTBadgeButton { width: 110; iconName: "chat-bold"; buttonText: qsTr("All replies"); badgeText: "3" }
        }
        Cell {
            label: qsTr("disabled")

            UTBadgeButton { iconName: "chat-bold"; buttonText: qsTr("Replies"); badgeText: "3"; enabled: false }
        }
    }
}
