import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Events")
    description: qsTr("Reports every key of a label that records shortcuts; focus it and type.")
    controls: [
        PropertySwitch { id: ignoreSwitch; label: "ignoreKeyEvents" }
    ]

    function describe(signalName: string, event: KKeyEvent): void {
        page.log(qsTr("%1, key 0x%2, modifiers 0x%3, text \"%4\"").arg(signalName).arg(Utils.getQKey(event).toString(16))
            .arg(event.modifiers.toString(16)).arg(event.text));
    }

    // A shortcut that recording keeps from being activated.
    Shortcut {
        sequence: "Ctrl+K"
        onActivated: page.log(qsTr("the shortcut Ctrl+K was activated"))
    }
    Playground {
        stageHeight: 160

        Column {
            spacing: Metrics.medium

            UTShortcutsLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: isInEditMode ? qsTr("Recording") : qsTr("Press keys here")
                leftIcon: "settings-regular"
                buttonStyle: UTButtonStyle.Secondary
                buttonSize: UTButtonSize.L
                // A Tab that is swallowed would hold the focus here for ever.
                isInEditMode: ignoreSwitch.value && activeFocus
                onKeyPressed: event => {
                    page.describe("kKeyPressEventChanged", event);
                    if (Utils.getQKey(event) === Qt.Key_Escape)
                        ignoreSwitch.value = false;
                }
                onKeyReleased: event => page.describe("kKeyReleaseEventChanged", event)
            }
            GalleryText {
                text: qsTr("Ctrl+K is a shortcut of this page. Escape ends the recording.")
                textColorSetName: "text-secondary"
            }
        }
    }
}
