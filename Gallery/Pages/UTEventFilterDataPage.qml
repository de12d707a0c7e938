import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Events")
    description: qsTr("Sees chosen events of an item before the item does; focus the button, click it and press the keys.")
    controls: [
        PropertyText { id: sequences; label: "processKeySequences"; value: "Alt+Down, Alt+Up"; prompt: qsTr("key sequences with commas between") },
        PropertySwitch { id: focusSwitch; label: "listenFocusIn"; value: true },
        PropertySwitch { id: releaseSwitch; label: "listenMouseRelease"; value: true }
    ]

    Playground {
        stageHeight: 160

        UTPillButton {
            text: qsTr("Watched")
            leftIcon: "settings-regular"
            buttonStyle: UTButtonStyle.Primary
            buttonSize: UTButtonSize.L

            UTEventFilterData.processKeySequences: sequences.value.split(",").map(text => text.trim()).filter(text => text)
            UTEventFilterData.listenFocusIn: focusSwitch.value
            UTEventFilterData.listenMouseRelease: releaseSwitch.value
            UTEventFilterData.onFocusInEvent: focusReason => page.log(qsTr("focusInEvent, reason %1").arg(focusReason))
            UTEventFilterData.onMouseLeftButtonReleased: page.log(qsTr("mouseLeftButtonReleased"))
            UTEventFilterData.onKKeyPressEventChanged: {
                const event = UTEventFilterData.kKeyPressEvent;
                page.log(qsTr("kKeyPressEventChanged, key 0x%1, modifiers 0x%2")
                    .arg(Utils.getQKey(event).toString(16)).arg(event.modifiers.toString(16)));
            }
        }
    }
    Sheet {
        title: qsTr("Focus reasons")
        text: qsTr("The numbers that focusInEvent reports.")
        minimumCellWidth: 112

        Repeater {
            model: [
                ["Mouse", Qt.MouseFocusReason], ["Tab", Qt.TabFocusReason], ["Backtab", Qt.BacktabFocusReason],
                ["ActiveWindow", Qt.ActiveWindowFocusReason], ["Popup", Qt.PopupFocusReason],
                ["Shortcut", Qt.ShortcutFocusReason], ["Other", Qt.OtherFocusReason]
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData[0]
                stageHeight: 56

                KText { text: cell.modelData[1] }
            }
        }
    }
}
