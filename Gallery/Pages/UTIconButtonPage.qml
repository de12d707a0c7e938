import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var types: [
        "Settings", "Favorite", "Info", "Attachment", "Emoji", "Link", "Pen", "Warning", "Popout", "Popin", "Dismiss", "Copy",
        "OutgoingCall"
    ]

    category: qsTr("Buttons")
    description: qsTr("A small button for one of the purposes that the library knows, with icon and colour of that purpose.")
    controls: [
        PropertyChoice { id: type; label: "buttonType"; options: page.types; currentIndex: 1 },
        PropertyText { id: tooltip; label: "tooltip"; value: qsTr("Favourite") },
        PropertySwitch { id: checkable; label: "checkable"; value: true },
        PropertySwitch { id: announces; label: "announceStateChange"; value: true },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        UTIconButton {
            buttonType: UTButtonType[type.value]
            tooltip: tooltip.value
            checkable: checkable.value
            announceStateChange: announces.value
            enabled: enabledSwitch.value
            onClicked: page.log("clicked")
            onToggled: page.log(checked ? qsTr("toggled, checked") : qsTr("toggled, not checked"))
        }
    }
    StateTable {
        title: qsTr("Types")
        rows: page.types
        delegate: UTIconButton {
            id: example

            required property string row
            required property StateRecord exampleState

            buttonType: UTButtonType[row]
            tooltip: row
            enabled: exampleState.enabled
            activeFocusOnTab: false
            UTIconButtonData.eventData: UTEventData { source: example.exampleState }
        }
    }
}
