/*!
    A plain button with round ends.

    \qml
    DPillButton { text: "Show more"; onClicked: list.grow() }
    \endqml
*/
import QtQuick

KButton {
    horizontalAlignment: Text.AlignHCenter
    radius: height / 2
}
