import QtQuick
import UIToolkitQml 1.0

// Texts as readers find them: by their text, or by the name given to them, and read anew when they ask for it.
Window {
    width: 320
    height: 200
    visible: true
    title: "Texts"

    Column {
        KText { text: "Plain" }
        KText {
            text: "12:05"
            accessibleText: "Five past twelve"
        }
        KText {
            id: status

            text: "Connecting"
            activeFocusOnTab: true
            refocusOnTextChange: true
            focus: true
            Keys.onSpacePressed: text = "Connected"
        }
        // Decoration: nothing of it is for readers.
        KFrame {
            width: 100
            height: 20

            KSvgIcon { svgName: "check-bold" }
        }
    }
}
