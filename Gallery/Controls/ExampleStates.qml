/*! The states that colour sets know, one record each. */
pragma Singleton

import QtQml
import QtQuick
import Gallery

QtObject {
    readonly property list<StateRecord> all: [
        StateRecord { name: "normal" },
        StateRecord { name: "hovered"; hovered: true },
        StateRecord { name: "pressed"; pressed: true },
        StateRecord { name: "focused"; activeFocus: true },
        StateRecord { name: "checked"; checked: true },
        StateRecord { name: "disabled"; enabled: false }
    ]
}
