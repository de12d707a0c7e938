pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var types: ["Round", "Panel", "DualArrow", "DualIcon", "ClosedCaptions", "KorvuAssistant", "KorvuAssistantLarge"]
    readonly property var styles: ["Secondary", "CommonSecondary", "Ghost", "Cancel", "Join"]
    readonly property var sizes: ["Medium", "Small", "ExtremeSmall"]

    function canLabel(type: string): bool {
        return ["Panel", "DualArrow", "DualIcon"].includes(type);
    }

    // Icons that suit a type.
    function leftIconOf(type: string): string {
        return type === "ClosedCaptions" ? "captions-bold" : type === "Panel" ? "people-bold"
            : type === "KorvuAssistant" ? "assistant.svg" : type === "KorvuAssistantLarge" ? "assistant-large.svg" : "microphone-bold";
    }

    // An assistant has a face of its own, which fills the button.
    function isBitmap(type: string): bool {
        return type.startsWith("Korvu");
    }

    category: qsTr("Calls")
    description: qsTr("A button of a call's control bar: one half or two, each with its own icon, state, tool tip and announcements.")
    controls: [
        PropertyChoice { id: type; label: "buttonType"; options: page.types; currentIndex: 2 },
        PropertyChoice { id: style; label: "buttonStyle"; options: page.styles },
        PropertyChoice { id: size; label: "buttonSize"; options: page.sizes },
        PropertyChoice { id: state; label: "buttonState"; options: ["Inactive", "Active"] },
        PropertyText { id: text; label: "text"; value: qsTr("Mute") },
        PropertySwitch { id: showText; label: "showText"; value: true },
        PropertyText { id: badge; label: "badgeText" },
        PropertySwitch { id: leftEnabled; label: "leftEnabled"; value: true },
        PropertySwitch { id: rightEnabled; label: "rightEnabled"; value: true },
        PropertySwitch { id: leftCheckable; label: "leftCheckable"; value: true },
        PropertySwitch { id: rightCheckable; label: "rightCheckable" }
    ]

    Playground {
        UTCallControlButton {
            id: sample

            buttonType: UTCallControlButtonEnum[type.value]
            buttonStyle: UTCallControlButtonEnum[style.value]
            buttonSize: UTCallControlButtonEnum[size.value]
            buttonState: UTCallControlButtonEnum[state.value]
            text: text.value
            showText: showText.value
            badgeText: badge.value
            leftEnabled: leftEnabled.value
            rightEnabled: rightEnabled.value
            leftCheckable: leftCheckable.value
            rightCheckable: rightCheckable.value
            leftIcon: page.isBitmap(type.value) ? page.leftIconOf(type.value) : "microphone-bold"
            leftCheckedIcon: page.isBitmap(type.value) ? "" : "microphone-muted-bold"
            isLeftBitmap: page.isBitmap(type.value)
            leftName: qsTr("Mute")
            leftTooltip: leftChecked ? qsTr("Unmute the microphone") : qsTr("Mute the microphone")
            rightIcon: type.value === "DualIcon" ? "video-bold" : "arrow-up-bold"
            rightCheckedIcon: type.value === "DualIcon" ? "video-muted-bold" : "arrow-down-bold"
            rightName: type.value === "DualIcon" ? qsTr("Stop video") : qsTr("Audio settings")
            leftAnnouncesState: true
            rightAnnouncesState: true
            onLeftClicked: page.log("leftClicked")
            onRightClicked: page.log("rightClicked")
            onLeftToggled: page.log(leftChecked ? qsTr("leftToggled, checked") : qsTr("leftToggled, not checked"))
            onRightToggled: page.log(rightChecked ? qsTr("rightToggled, checked") : qsTr("rightToggled, not checked"))
        }
    }
    // A call that runs as long as the page is open.
    Sheet {
        title: qsTr("A call")
        text: qsTr("Try it: every button works, tells assistive technology what became of it, and shows what is in force.")
        minimumCellWidth: 720

        CallBar { onLogged: text => page.log(text) }
    }
    StateTable {
        title: qsTr("Styles")
        rows: page.styles.concat(["Ghost, active"])
        delegate: UTCallControlButton {
            required property string row
            required property StateRecord exampleState

            buttonStyle: UTCallControlButtonEnum[row.split(",")[0]]
            buttonState: row.endsWith("active") ? UTCallControlButtonEnum.Active : UTCallControlButtonEnum.Inactive
            leftIcon: "microphone-bold"
            leftCheckedIcon: "microphone-muted-bold"
            leftName: qsTr("Mute")
            shownState: exampleState
        }
    }
    StateTable {
        title: qsTr("Types")
        rows: page.types
        delegate: UTCallControlButton {
            required property string row
            required property StateRecord exampleState

            buttonType: UTCallControlButtonEnum[row]
            buttonSize: UTCallControlButtonEnum.Small
            text: row === "Panel" ? qsTr("All") : ""
            leftIcon: page.leftIconOf(row)
            isLeftBitmap: page.isBitmap(row)
            leftName: row
            rightIcon: row === "DualIcon" ? "video-bold" : "arrow-up-bold"
            rightName: qsTr("More")
            rightEnabled: exampleState.enabled
            shownState: exampleState
        }
    }
    Sheet {
        title: qsTr("Sizes")
        minimumCellWidth: 180

        Repeater {
            model: page.types.reduce((cells, type) => cells.concat(page.sizes
                .filter(size => size !== "ExtremeSmall" || ["Round", "Panel"].includes(type))
                .map(size => ({ type: type, size: size }))), [])

            Cell {
                id: sizeCell

                required property var modelData

                label: modelData.type
                note: modelData.size

                UTCallControlButton {
                    buttonType: UTCallControlButtonEnum[sizeCell.modelData.type]
                    buttonSize: UTCallControlButtonEnum[sizeCell.modelData.size]
                    text: page.canLabel(sizeCell.modelData.type) ? qsTr("Share") : ""
                    leftIcon: page.canLabel(sizeCell.modelData.type) ? "share-screen-bold" : page.leftIconOf(sizeCell.modelData.type)
                    isLeftBitmap: page.isBitmap(sizeCell.modelData.type)
                    leftName: qsTr("Share")
                    rightIcon: sizeCell.modelData.type === "DualIcon" ? "video-bold" : "arrow-up-bold"
                    rightName: qsTr("More")
                }
            }
        }
    }
    Sheet {
        title: qsTr("Parts")
        minimumCellWidth: 180

        Cell {
            label: "badgeText: \"3\""

            UTCallControlButton { leftIcon: "chat-bold"; leftName: qsTr("Chat"); badgeText: "3" }
        }
        Cell {
            label: "badgeText: \"99+\""

            UTCallControlButton {
                buttonType: UTCallControlButtonEnum.Panel
                text: qsTr("People")
                leftIcon: "people-bold"
                badgeText: "99+"
            }
        }
        Cell {
            label: "badgeVisible"
            note: qsTr("a dot")

            UTCallControlButton { leftIcon: "chat-bold"; leftName: qsTr("Chat"); badgeVisible: true }
        }
        Cell {
            label: qsTr("one half checked")

            UTCallControlButton {
                buttonType: UTCallControlButtonEnum.DualIcon
                leftIcon: "microphone-muted-bold"
                leftName: qsTr("Mute")
                leftChecked: true
                rightIcon: "video-bold"
                rightName: qsTr("Stop video")
            }
        }
        Cell {
            label: "rightEnabled: false"

            UTCallControlButton {
                buttonType: UTCallControlButtonEnum.DualArrow
                leftIcon: "video-bold"
                leftName: qsTr("Stop video")
                rightName: qsTr("Video settings")
                rightEnabled: false
            }
        }
        Cell {
            label: qsTr("elided")

            UTCallControlButton {
                width: 140
                buttonType: UTCallControlButtonEnum.DualArrow
                text: qsTr("Share your screen")
                leftIcon: "share-screen-bold"
                rightName: qsTr("Sharing options")
            }
        }
    }
}
