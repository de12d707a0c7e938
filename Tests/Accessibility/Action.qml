import QtQuick

// Something to press, by the space bar and by assistive technology, once each.
Rectangle {
    id: action

    signal triggered

    width: 100
    height: 30
    activeFocusOnTab: true
    color: activeFocus ? "lightblue" : "lightgray"
    Keys.onSpacePressed: action.triggered()

    // A button would have its press action twice: once of its role, once of the handler.
    Accessible.role: Accessible.MenuItem
    Accessible.focusable: true
    Accessible.onPressAction: action.triggered()
}
