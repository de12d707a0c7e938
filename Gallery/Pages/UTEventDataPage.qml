import QtQuick
import UIToolkitQml 1.0
import Gallery
import UIToolkitQml_Private_Data 1.0

GalleryPage {
    id: page

    category: qsTr("Colour")
    description: qsTr("The interaction state of an item as its data objects see it; point at the example and press it.")
    controls: [
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true },
        PropertySwitch { id: checkedSwitch; label: "checked" }
    ]

    UTEventData {
        id: state

        enabled: button.enabled
        hovered: button.hovered
        activeFocus: button.activeFocus
        checked: checkedSwitch.value
        pressed: button.pressed
        onEnabledChanged: page.log(qsTr("enabledChanged"))
        onHoveredChanged: page.log(qsTr("hoveredChanged"))
        onActiveFocusChanged: page.log(qsTr("activeFocusChanged"))
        onCheckedChanged: page.log(qsTr("checkedChanged"))
        onPressedChanged: page.log(qsTr("pressedChanged"))
        onEventDataChanged: page.log(qsTr("eventDataChanged, one turn of the event loop later"))
    }
    Playground {
        stageHeight: 160

        UTPillButton {
            id: button

            text: qsTr("Point at me")
            leftIcon: "thumbs-up-bold"
            buttonStyle: UTButtonStyle.Accent
            buttonSize: UTButtonSize.L
            enabled: enabledSwitch.value
        }
    }
    Sheet {
        title: qsTr("State")
        minimumCellWidth: 112

        FlagCell { label: "enabled"; value: state.enabled }
        FlagCell { label: "hovered"; value: state.hovered }
        FlagCell { label: "activeFocus"; value: state.activeFocus }
        FlagCell { label: "checked"; value: state.checked }
        FlagCell { label: "pressed"; value: state.pressed }
    }

    component FlagCell: Cell {
        id: flag

        property bool value

        stageHeight: 72
        note: value ? "true" : "false"

        KSvgIcon {
            height: 24
            svgName: flag.value ? "check-circle-filled" : "cancel-regular"
            svgColorSetName: flag.value ? "label-success-text" : "text-secondary"
        }
    }
}
