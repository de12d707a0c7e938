import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

// A pop-over that takes the focus and gives it back.
Window {
    width: 320
    height: 200
    visible: true
    title: "Pop-overs"

    Item {
        width: 80
        height: 30
        focus: true
        activeFocusOnTab: true

        Accessible.role: Accessible.MenuItem
        Accessible.name: "People"
        Accessible.focusable: true
        Accessible.onPressAction: popOver.showPopOver()

        UTPopOver {
            id: popOver

            accessibleName: "People in this space"
            content: FocusScope {
                implicitWidth: 160
                implicitHeight: 60

                Item {
                    width: 80
                    height: 30
                    focus: true
                    activeFocusOnTab: true

                    Accessible.role: Accessible.MenuItem
                    Accessible.name: "Invite"
                    Accessible.focusable: true
                }
            }
        }
    }
}
