pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    readonly property var styles: [
        "Primary", "Secondary", "Ghost", "Accent", "AccentGhost", "CancelGhost", "MessageGhost", "Join", "OutlineJoin", "Cancel",
        "OutlineCancel", "Message", "OverLay", "TeachingPrimary", "TeachingSecondary", "DeviceActive", "DeviceInactive",
        "CommonPrimary", "CommonSecondary", "CommonGhost", "CommonGhostInverted", "Selected", "SkinTone", "Clear"
    ]
    readonly property var sizes: ["XL", "L", "M", "S", "XS", "XXS", "XXXS"]

    // Some styles are made for a ground of their own.
    function groundOf(style: string): string {
        if (style.startsWith("Teaching"))
            return "coachmarkteaching-background";
        if (style.startsWith("Device"))
            return "globalHeader-container-background";
        return style === "CommonGhostInverted" ? "button-primary-background" : "transparent";
    }

    category: qsTr("Buttons")
    description: qsTr("A label with an icon on either side, in all button styles and sizes.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("Join the call") },
        PropertyChoice { id: style; label: "buttonStyle"; options: page.styles },
        PropertyChoice { id: size; label: "buttonSize"; options: page.sizes },
        PropertySwitch { id: leftIcon; label: "leftIcon: \"video-bold\""; value: true },
        PropertySwitch { id: rightIcon; label: "rightIcon: \"arrow-down-bold\"" },
        PropertyChoice { id: alignment; label: "alignment"; options: [qsTr("undefined"), "AlignLeft", "AlignHCenter", "AlignRight"] },
        PropertySwitch { id: isIconAlignText; label: "isIconAlignText" },
        PropertySlider { id: width; label: "width"; from: 60; to: 400; value: 200 },
        PropertyText { id: tooltip; label: "tooltip"; value: qsTr("Everyone is there already") },
        PropertySwitch { id: isTooltipCustom; label: "isTooltipCustom" },
        PropertySwitch { id: innerFocusBorder; label: "innerFocusBorder" },
        PropertySwitch { id: checkable; label: "checkable" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        KRectangle {
            width: sample.width + 48
            height: sample.height + 48
            radius: 8
            backgroundColorSetName: page.groundOf(style.value)

            UTPillButton {
                id: sample

                anchors.centerIn: parent
                width: width.value
                text: text.value
                buttonStyle: UTButtonStyle[style.value]
                buttonSize: UTButtonSize[size.value]
                leftIcon: leftIcon.value ? "video-bold" : ""
                rightIcon: rightIcon.value ? "arrow-down-bold" : ""
                alignment: [undefined, Text.AlignLeft, Text.AlignHCenter, Text.AlignRight][alignment.currentIndex]
                isIconAlignText: isIconAlignText.value
                tooltip: tooltip.value
                isTooltipCustom: isTooltipCustom.value
                innerFocusBorder: innerFocusBorder.value
                checkable: checkable.value
                enabled: enabledSwitch.value
                onClicked: page.log("clicked")
                onToggled: page.log(checked ? qsTr("toggled, checked") : qsTr("toggled, not checked"))
                onIsTruncatedChanged: page.log(isTruncated ? qsTr("truncated") : qsTr("no longer truncated"))
            }
        }
    }
    StateTable {
        title: qsTr("Styles")
        rows: page.styles
        groundOf: page.groundOf
        delegate: UTPillButton {
            id: example

            required property string row
            required property StateRecord exampleState

            text: qsTr("Mute")
            leftIcon: exampleState.checked ? "microphone-muted-bold" : "microphone-bold"
            buttonStyle: UTButtonStyle[row]
            buttonSize: UTButtonSize.S
            enabled: exampleState.enabled
            activeFocusOnTab: false
            UTPillButtonData.eventData: UTEventData { source: example.exampleState }
        }
    }
    Sheet {
        title: qsTr("Sizes")

        Repeater {
            model: page.sizes

            Cell {
                id: sizeCell

                required property string modelData

                label: modelData

                UTPillButton {
                    text: qsTr("Share")
                    leftIcon: "share-screen-bold"
                    buttonSize: UTButtonSize[sizeCell.modelData]
                }
            }
        }
    }
    Sheet {
        title: qsTr("Label and icons in a wide button")

        Repeater {
            model: [
                { label: "alignment: undefined" },
                { label: "AlignLeft", alignment: Text.AlignLeft },
                { label: "AlignRight", alignment: Text.AlignRight },
                { label: "AlignLeft, isIconAlignText", alignment: Text.AlignLeft, withText: true },
                { label: "AlignHCenter, isIconAlignText", alignment: Text.AlignHCenter, withText: true },
                { label: "AlignRight, isIconAlignText", alignment: Text.AlignRight, withText: true },
                { label: qsTr("elided"), alignment: Text.AlignLeft, text: qsTr("Everyone in this space") }
            ]

            Cell {
                id: wideCell

                required property var modelData

                label: modelData.label

                UTPillButton {
                    width: 136
                    text: wideCell.modelData.text ?? qsTr("Notify")
                    leftIcon: "alert-bold"
                    rightIcon: "arrow-down-bold"
                    alignment: wideCell.modelData.alignment
                    isIconAlignText: wideCell.modelData.withText ?? false
                    buttonStyle: UTButtonStyle.Secondary
                    buttonSize: UTButtonSize.M
                }
            }
        }
    }
    Sheet {
        title: qsTr("Colours of the icons")

        Cell {
            label: "iconColorSetName"

            UTPillButton {
                text: qsTr("Favourite")
                leftIcon: "favorite-filled"
                rightIcon: "arrow-down-bold"
                iconColorSetName: "interactiveicon-tertiary-filled-favorite-icon-active"
                rightIconColorSetName: "button-secondary-text"
                buttonStyle: UTButtonStyle.Secondary
                buttonSize: UTButtonSize.L
            }
        }
    }
}
