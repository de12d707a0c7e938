import QtQuick
import Korvu 1.0

Window {
    width: 320
    height: 200
    visible: true
    title: "Host"

    Column {
        Action {
            Accessible.name: "Say"
            Accessible.description: "Speaks at once"
            focus: true
            onTriggered: UIToolKitUtils.sayAccessible(this, "Spoken at once")
        }
        Action {
            Accessible.name: "Say later"
            onTriggered: UIToolKitUtils.sayAccessible(this, "Spoken later", 200)
        }
        Action {
            Accessible.name: "Say twice"
            onTriggered: {
                UIToolKitUtils.sayAccessible(this, "Again");
                UIToolKitUtils.sayAccessible(this, "Again");
            }
        }
        Action {
            Accessible.name: "Say for a part"
            onTriggered: UIToolKitUtils.sayAccessible(part, "Spoken for a part")

            Item {
                id: part
            }
        }
        Action {
            Accessible.name: "Say nothing"
            onTriggered: UIToolKitUtils.sayAccessible(this, " ")
        }
    }
}
