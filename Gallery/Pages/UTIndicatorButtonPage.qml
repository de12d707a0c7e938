pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var kinds: [
        "Alert", "AllMention", "Blocked", "Disconnect", "Draft", "Error", "ErrorAlert", "Mention",
        "Muted", "NewlyAdded", "OutgoingCall", "PopOut", "Recording", "Success", "Unread", "Warning",
        "WarningAlert", "Info", "NewFeature", "PersonalAssistant", "AiAssistant", "TipHelp", "LiveActive", "LiveInactive",
        "ForwardingInfo", "MeetingSummary"
    ]

    category: qsTr("Buttons")
    description: qsTr("A button that is an indicator badge: an error, a warning, a recording, and so on.")
    controls: [
        PropertyChoice { id: type; label: "indicatorType"; options: page.kinds; currentIndex: 12 },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTIndicatorButton {
            indicatorType: UTIndicatorBadgeEnum[type.value]
            tooltip: type.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
        }
    }
    Sheet {
        title: qsTr("Kinds")

        Repeater {
            model: page.kinds

            Cell {
                id: kindCell

                required property string modelData

                label: modelData
                stageHeight: 56

                UTIndicatorButton {
                    indicatorType: UTIndicatorBadgeEnum[kindCell.modelData]
                    tooltip: kindCell.modelData
                }
            }
        }
    }
}
