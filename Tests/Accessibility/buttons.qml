import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0

// Every kind of button. Each tells by an announcement that it was pressed, so that a press too many is heard.
Window {
    id: scene

    width: 640
    height: 480
    visible: true
    title: "Buttons"

    function tell(button: Item, text: string): void {
        UIToolKitUtils.sayAccessible(button, text);
    }

    Flow {
        anchors.fill: parent
        spacing: 8

        UTPillButton { text: "Pill"; focus: true; onClicked: scene.tell(this, "pressed") }
        UTPillButton { text: "Disabled pill"; enabled: false }
        UTPillButton { text: "Named by its text"; tooltip: "and not by this"; onClicked: scene.tell(this, "pressed") }
        UTPillButton { text: "Toggle"; checkable: true; announceStateChange: true; onToggled: scene.tell(this, checked ? "on" : "off") }
        UTPillButton { text: "Choice"; checkable: true; checked: true; isInExclusiveGroup: true; onClicked: scene.tell(this, "pressed") }
        UTMultilinePillButton { text: "Multiline pill"; onClicked: scene.tell(this, "pressed") }
        UTRoundButton { buttonIcon: "microphone-bold"; tooltip: "Round"; onClicked: scene.tell(this, "pressed") }
        UTIconButton { buttonType: UTButtonType.Settings; tooltip: "Icon"; onToggled: scene.tell(this, "pressed") }
        UTRectangleButton { text: "Rectangle"; onClicked: scene.tell(this, "pressed") }
        UTRectangleToggleButton { buttonIcon: "pin-bold"; tooltip: "Rectangle toggle"; onToggled: scene.tell(this, "pressed") }
        UTTextButton { text: "Text"; onClicked: scene.tell(this, "pressed") }
        UTBlockButton { text: "Block"; onClicked: scene.tell(this, "pressed") }
        UTIndicatorButton { indicatorType: UTIndicatorBadgeEnum.Error; tooltip: "Indicator"; onClicked: scene.tell(this, "pressed") }
        UTToolButton { iconName: "copy-bold"; tooltip: "Tool"; onClicked: scene.tell(this, "pressed") }
        WindowsButton { buttonType: WindowsButton.Close; onClicked: scene.tell(this, "pressed") }
        UTBadgeButton { iconName: "chat-bold"; buttonText: "Badge"; badgeText: "3"; onClicked: scene.tell(this, "pressed") }
        KButton { text: "Plain"; onClicked: scene.tell(this, "pressed") }
        DPillButton { text: "Plain pill"; onClicked: scene.tell(this, "pressed") }
        DSvgButton { text: "Plain with icon"; icon.name: "plus-bold"; onClicked: scene.tell(this, "pressed") }
        DSvgIconButton { iconName: "plus-bold"; tooltip: "Plain icon"; onClicked: scene.tell(this, "pressed") }
        UTChip { text: "Chip"; onClicked: scene.tell(this, "pressed") }
        UTCallControlButton { leftIcon: "chat-bold"; leftName: "Call control"; badgeText: "3"; onLeftClicked: scene.tell(leftButton, "pressed") }
        UTCallControlButton {
            buttonType: UTCallControlButtonEnum.DualArrow
            text: "Call control group"
            leftIcon: "video-bold"
            leftAccessibleName: "Left half"
            leftCheckable: true
            rightName: "Right half"
            onLeftToggled: scene.tell(leftButton, leftChecked ? "on" : "off")
            onRightClicked: scene.tell(rightButton, "pressed")
        }
        UTToggleButton {
            leftIcon: "list-bulleted-bold"; leftAccessibleName: "Left toggle"; leftAccessibleDescription: "A list"
            rightIcon: "columns-bold"; rightAccessibleName: "Right toggle"
            rightButton.checked: true
            leftButton.announceStateChange: false
            leftButton.onToggled: scene.tell(leftButton, "on")
        }
        UTDualButton {
            text: "Dual"; leftIconName: "minus-bold"
            rightIconName: "plus-bold"; rightAccessibleName: "Dual, right half"
            onLeftClicked: scene.tell(leftButton, "pressed")
            onRightClicked: scene.tell(rightButton, "pressed")
        }
        UTDualIconButton { leftAccessibleName: "Dual icon"; rightAccessibleName: "Second dual icon"; onLeftClicked: scene.tell(leftButton, "pressed") }
        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.RaiseHand
            isOn: true
            count: 2
            onTriggered: scene.tell(leftButton, "pressed")
        }
        UTMoreInfoButton { tooltip: "More"; moreInfoText: "What there is to know" }
        UTIndicatorButton { tooltip: "Nothing to indicate" }
        UTPillButton { text: "Unread"; accessibleText: "None unread"; onClicked: accessibleText = "Two unread" }
    }
}
