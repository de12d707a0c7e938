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
        "CommonPrimary", "CommonSecondary", "CommonGhost", "CommonGhostInverted", "Selected", "Clear"
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
    description: qsTr("A circle with an icon in it, in all button styles and sizes. Its tool tip names it.")
    controls: [
        PropertyText { id: icon; label: "buttonIcon"; value: "arrow-right-bold" },
        PropertyChoice { id: style; label: "buttonStyle"; options: page.styles.concat(["Customized"]) },
        PropertyChoice { id: size; label: "buttonSize"; options: page.sizes },
        PropertyText { id: customColor; label: "iconColorCustomized"; value: "tomato" },
        PropertyColorSet { id: iconColor; label: "iconColorSetName"; initial: "" },
        PropertySwitch { id: mirrorEnabled; label: "mirrorEnabled"; value: true },
        PropertyText { id: tooltip; label: "tooltip"; value: qsTr("Next page") },
        PropertySwitch { id: innerFocusBorder; label: "innerFocusBorder" },
        PropertySwitch { id: customRect; label: "customFocusRect" },
        PropertySwitch { id: checkable; label: "checkable" },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        KRectangle {
            width: sample.width + 48
            height: sample.height + 48
            radius: 8
            backgroundColorSetName: page.groundOf(style.value)

            UTRoundButton {
                id: sample

                anchors.centerIn: parent
                buttonIcon: icon.value
                buttonStyle: UTButtonStyle[style.value]
                buttonSize: UTButtonSize[size.value]
                iconColorCustomized: customColor.value
                iconColorSetName: iconColor.colorSetName
                mirrorEnabled: mirrorEnabled.value
                tooltip: tooltip.value
                innerFocusBorder: innerFocusBorder.value
                customFocusRect: customRect.value ? Qt.rect(-8, -8, width + 16, height + 16) : Qt.rect(0, 0, 0, 0)
                checkable: checkable.value
                enabled: enabledSwitch.value
                onClicked: page.log("clicked")
                onToggled: page.log(checked ? qsTr("toggled, checked") : qsTr("toggled, not checked"))
            }
        }
    }
    StateTable {
        title: qsTr("Styles")
        rows: page.styles
        groundOf: page.groundOf
        delegate: UTRoundButton {
            id: example

            required property string row
            required property StateRecord exampleState

            buttonIcon: exampleState.checked ? "microphone-muted-bold" : "microphone-bold"
            buttonStyle: UTButtonStyle[row]
            buttonSize: UTButtonSize.S
            enabled: exampleState.enabled
            activeFocusOnTab: false
            UTRoundButtonData.eventData: UTEventData { source: example.exampleState }
        }
    }
    Sheet {
        title: qsTr("Sizes")
        minimumCellWidth: 104

        Repeater {
            model: page.sizes

            Cell {
                id: sizeCell

                required property string modelData

                label: modelData

                UTRoundButton {
                    buttonIcon: "share-screen-bold"
                    buttonSize: UTButtonSize[sizeCell.modelData]
                    tooltip: qsTr("Share the screen")
                }
            }
        }
    }
    Sheet {
        title: qsTr("Direction")
        text: qsTr("An arrow points where the text runs; most icons do not care.")

        Repeater {
            model: [true, false]

            Cell {
                id: mirrorCell

                required property bool modelData

                label: "mirrorEnabled: %1".arg(modelData)

                UTRoundButton {
                    buttonIcon: "arrow-right-bold"
                    buttonStyle: UTButtonStyle.Secondary
                    buttonSize: UTButtonSize.M
                    mirrorEnabled: mirrorCell.modelData
                    tooltip: qsTr("Next page")
                }
            }
        }
    }
}
