/*! The state of an item that does not exist: what a primitive looks like when its target is in that state. */
import QtQml
import QtQuick

QtObject {
    property string name
    property bool enabled: true
    property bool hovered: false
    property bool pressed: false
    property bool activeFocus: false
    property bool checked: false
    property bool readOnly: false
}
