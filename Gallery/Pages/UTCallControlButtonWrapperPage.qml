pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var actions: [
        "Mute", "StopVideo", "Share", "Captions", "RaiseHand", "Record", "Speaker", "Keypad", "Participants", "Chat", "Assistant",
        "Leave", "EndCall", "Join"
    ]

    category: qsTr("Calls")
    description: qsTr("A call-control button for one of the usual actions of a call, in three lines.")
    controls: [
        PropertyChoice { id: action; label: "action"; options: page.actions },
        PropertySwitch { id: isOn; label: "isOn" },
        PropertySwitch { id: hasMenu; label: "hasMenu"; value: true },
        PropertySwitch { id: isMenuOpen; label: "isMenuOpen" },
        PropertySwitch { id: isLabelled; label: "isLabelled" },
        PropertySlider { id: count; label: "count"; to: 120 },
        PropertySwitch { id: follows; label: qsTr("do what is asked for"); value: true }
    ]

    Playground {
        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action[action.value]
            isOn: isOn.value
            hasMenu: hasMenu.value
            isMenuOpen: isMenuOpen.value
            isLabelled: isLabelled.value
            count: count.value
            onTriggered: {
                page.log("triggered");
                if (follows.value)
                    isOn.value = !isOn.value;
            }
            onMenuRequested: {
                page.log("menuRequested");
                if (follows.value)
                    isMenuOpen.value = !isMenuOpen.value;
            }
        }
    }
    Sheet {
        title: qsTr("Actions")
        text: qsTr("Each off, on and with a menu.")
        minimumCellWidth: 216

        Repeater {
            model: page.actions

            Cell {
                id: cell

                required property string modelData

                label: modelData

                Row {
                    spacing: 8

                    UTCallControlButtonWrapper { action: UTCallControlButtonWrapper.Action[cell.modelData] }
                    UTCallControlButtonWrapper { action: UTCallControlButtonWrapper.Action[cell.modelData]; isOn: true }
                    UTCallControlButtonWrapper { action: UTCallControlButtonWrapper.Action[cell.modelData]; hasMenu: true }
                }
            }
        }
    }
    Sheet {
        title: qsTr("A call")
        minimumCellWidth: 720

        CallBar { onLogged: text => page.log(text) }
    }
}
