/*!
    The least that an application would write for a button of its own: what every component's cost is compared with.
*/
import QtQuick

Rectangle {
    id: control

    property alias text: label.text
    signal clicked

    implicitWidth: label.implicitWidth + 2 * radius
    implicitHeight: label.implicitHeight + radius
    radius: 8
    color: tap.pressed ? "#0a5bb0" : hover.hovered ? "#2a84e0" : "#1170cf"

    Text {
        id: label

        anchors.centerIn: parent
        color: "#ffffff"
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        onTapped: control.clicked()
    }
}
