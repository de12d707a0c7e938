import QtQuick
import UIToolkitQml 1.0
import Gallery
import UIToolkitQml_Private_Data 1.0

GalleryPage {
    id: page

    category: qsTr("Colour")
    description: qsTr("The colours of one item as an attached object; they follow the item's state.")
    controls: [
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true },
        PropertySwitch { id: hoveredSwitch; label: "hovered" },
        PropertySwitch { id: focusSwitch; label: "activeFocus" },
        PropertySwitch { id: checkedSwitch; label: "checked" },
        PropertySwitch { id: pressedSwitch; label: "pressed" },
        PropertySwitch { id: activeToken; label: "activeToken" },
        PropertySwitch { id: customized; label: "colorCustomized" },
        PropertySwitch { id: darkSwitch; label: qsTr("themeType: \"dark\"") }
    ]

    readonly property string activeBackground: activeToken.value ? "button-cancel-fill-background" : ""

    onActiveBackgroundChanged: target.UTColorSetData.backgroundColorData.activeToken = activeBackground

    UTEventData {
        id: state

        enabled: enabledSwitch.value
        hovered: hoveredSwitch.value
        activeFocus: focusSwitch.value
        checked: checkedSwitch.value
        pressed: pressedSwitch.value
    }
    Playground {
        Rectangle {
            id: target

            width: 240
            height: 80
            radius: 8
            color: UTColorSetData.backgroundColorData.color
            border.color: UTColorSetData.borderColorData.color

            UTColorSetData.themeType: darkSwitch.value ? "dark" : "global"
            UTColorSetData.eventData: state

            Component.onCompleted: {
                UTColorSetData.backgroundColorData.token = "button-accent-fill-background";
                UTColorSetData.borderColorData.token = "button-accent-fill-border";
                UTColorSetData.textColorData.token = "button-accent-fill-text";
                UTColorSetData.iconColorData.token = "button-accent-fill-text";
            }
            onColorChanged: page.log(qsTr("background is %1").arg(color.toString()))

            Row {
                anchors.centerIn: parent
                spacing: 8

                KSvgIcon {
                    anchors.verticalCenter: parent.verticalCenter
                    height: 20
                    svgName: "palette-bold"
                    svgColor: target.UTColorSetData.iconColorData.color
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Coloured by its data")
                    font: FontConstants.bodyPrimary
                    color: target.UTColorSetData.textColorData.color
                }
            }
            Binding {
                target: target.UTColorSetData.backgroundColorData
                property: "colorCustomized"
                value: customized.value
            }
        }
    }
    Sheet {
        title: qsTr("Colours")

        ColorCell { label: "backgroundColorData"; shade: target.UTColorSetData.backgroundColorData.color; note: target.UTColorSetData.backgroundColorData.token }
        ColorCell { label: "borderColorData"; shade: target.UTColorSetData.borderColorData.color; note: target.UTColorSetData.borderColorData.token }
        ColorCell { label: "textColorData"; shade: target.UTColorSetData.textColorData.color; note: target.UTColorSetData.textColorData.token }
        ColorCell { label: "iconColorData"; shade: target.UTColorSetData.iconColorData.color; note: target.UTColorSetData.iconColorData.token }
    }

    component ColorCell: Cell {
        id: cell

        property color shade

        stageHeight: 72

        Swatch { color: cell.shade }
    }
}
