pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Accessibility")
    description: qsTr("Texts that a screen reader speaks and nobody sees; the tab \"Reader\" lists what it is told.")
    controls: [
        PropertyText { id: text; label: qsTr("Text"); value: qsTr("Three new messages") },
        PropertySlider { id: delay; label: qsTr("Delay in milliseconds"); to: 3000; stepSize: 250; value: 0 }
    ]

    Connections {
        target: UIToolKitUtils

        function onAnnounced(text: string): void {
            page.log(qsTr("announced \"%1\"").arg(text));
        }
    }
    Playground {
        stageHeight: 120

        UTPillButton {
            id: say

            text: qsTr("Say it")
            leftIcon: "speaker-bold"
            buttonStyle: UTButtonStyle.Primary
            buttonSize: UTButtonSize.L
            onClicked: UIToolKitUtils.sayAccessible(say, text.value, delay.value)
        }
    }
    Sheet {
        title: qsTr("Examples")
        minimumCellWidth: 200

        Repeater {
            model: [
                { label: qsTr("At once"), text: qsTr("Message sent"), delay: 0 },
                { label: qsTr("After a second"), text: qsTr("Connection restored"), delay: 1000 },
                { label: qsTr("Blanks only"), text: "   ", delay: 0 }
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData.label
                note: modelData.text.trim().length > 0 ? modelData.text : qsTr("is not spoken")

                UTPillButton {
                    id: button

                    text: cell.modelData.label
                    buttonStyle: UTButtonStyle.Secondary
                    buttonSize: UTButtonSize.L
                    onClicked: UIToolKitUtils.sayAccessible(button, cell.modelData.text, cell.modelData.delay)
                }
            }
        }
    }
    Sheet {
        title: qsTr("A text that changes")
        text: qsTr("With refocusOnTextChange the focus leaves a KText and comes back whenever its text changes, so that it is read again.")
        minimumCellWidth: 240

        Cell {
            id: counterCell

            property int count: 0

            label: "refocusOnTextChange: true"

            Column {
                spacing: 12

                UTPillButton {
                    text: qsTr("Count on")
                    buttonStyle: UTButtonStyle.Secondary
                    buttonSize: UTButtonSize.L
                    onClicked: counterCell.count += 1
                }
                KText {
                    text: qsTr("Counted to %1").arg(counterCell.count)
                    refocusOnTextChange: true
                    Accessible.focusable: true

                    FocusRing { innerFocusBorder: false }
                }
            }
        }
    }
}
