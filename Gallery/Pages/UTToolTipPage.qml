pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Tool tips")
    description: qsTr("A short text beside a control, in a window of its own. Point at the button, or reach it by Tab.")
    controls: [
        PropertyText { id: text; label: "tooltipText"; value: qsTr("Everyone hears you") },
        PropertyChoice { id: style; label: "tooltipStyle"; options: ["Native", "Customized"]; currentIndex: 1 },
        PropertyChoice { id: anchor; label: "arrowAnchor"; options: ["Top", "Bottom", "Left", "Right"] },
        PropertyChoice {
            id: alignment
            label: "arrowAlignment"
            options: ["LeftAlignment", "CenterAlignment", "RightAlignment", "TopAlignment", "BottomAlignment"]
            currentIndex: 1
        },
        PropertySlider { id: maximumWidth; label: "maximumWidth"; from: 60; to: 500; value: 308 },
        PropertySlider { id: delay; label: "delayToStartTime"; to: 2000; value: 0 },
        PropertySlider { id: toggleOff; label: "toggleOffTime"; to: 5000; value: 0 }
    ]

    Playground {
        UTPillButton {
            id: button

            text: qsTr("Point at me")
            buttonStyle: UTButtonStyle.Secondary
            buttonSize: UTButtonSize.L

            UTToolTip {
                anchors.fill: parent
                tooltipText: text.value
                tooltipStyle: UTTooltipEnum[style.value]
                arrowAnchor: UTTooltipEnum[anchor.value]
                arrowAlignment: UTTooltipEnum[alignment.value]
                maximumWidth: maximumWidth.value
                delayToStartTime: delay.value
                toggleOffTime: toggleOff.value
                hovered: button.hovered
                focused: button.activeFocus && App.isKeyboardFocus
                onShowToolTip: {
                    tooltipWindow = ToolTipWindowManager.getWindow(this, true);
                    page.log("showToolTip");
                }
                onAboutToHide: page.log("aboutToHide")
                onTooltipVisibleChanged: page.log("tooltipVisible: %1".arg(tooltipVisible))
            }
        }
    }
    Sheet {
        title: qsTr("One at a time")
        text: qsTr("Each of these has a managed tool tip; where there is no room on its side it turns to another.")

        Repeater {
            model: ["Top", "Bottom", "Left", "Right"]

            Cell {
                id: cell

                required property string modelData

                label: "arrowAnchor: %1".arg(modelData)

                UTPillButton {
                    id: target

                    text: cell.modelData
                    buttonStyle: UTButtonStyle.Secondary
                    buttonSize: UTButtonSize.L

                    UTToolTip {
                        anchors.fill: parent
                        tooltipText: qsTr("The arrow is on the side %1").arg(cell.modelData)
                        tooltipStyle: UTTooltipEnum.Customized
                        arrowAnchor: UTTooltipEnum[cell.modelData]
                        hovered: target.hovered
                        focused: target.activeFocus && App.isKeyboardFocus
                        onShowToolTip: tooltipWindow = ToolTipWindowManager.getWindow(this, true)
                    }
                }
            }
        }
    }
}
