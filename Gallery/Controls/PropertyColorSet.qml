/*! A control for a colour set's name. It passes on only names that exist, so not every letter typed. */
import QtQuick
import Korvu 1.0
import Gallery

PropertyText {
    id: control

    property string initial
    readonly property var names: ThemeManager.colorSetNames()
    property string colorSetName: initial

    value: initial
    prompt: qsTr("name of a colour set")

    onValueChanged: {
        if (names.includes(value))
            colorSetName = value;
    }
}
