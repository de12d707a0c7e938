import QtQuick
import UIToolkitQml 1.0

// A pop-over that takes the focus and gives it back.
Window {
    width: 320
    height: 200
    visible: true
    title: "Pop-overs"

    Action {
        Accessible.name: "People"
        focus: true
        onTriggered: popOver.showPopOver()

        UTPopOver {
            id: popOver

            accessibleName: "People in this space"
            content: FocusScope {
                implicitWidth: 160
                implicitHeight: 60

                Action {
                    Accessible.name: "Invite"
                    focus: true
                }
            }
        }
    }
}
