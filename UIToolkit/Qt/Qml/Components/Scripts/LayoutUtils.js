.pragma library

// Where an item ends: in its parent's layout, and on the screen.

// The y at which what comes below may begin, margins included.
function bottomY(widget) {
    return widget.y + widget.implicitHeight + widget.anchors.topMargin + widget.anchors.bottomMargin;
}

// The item's rectangle in global coordinates.
function globalRect(widget) {
    const topLeft = widget.mapToGlobal(0, 0);
    return Qt.rect(topLeft.x, topLeft.y, widget.width, widget.height);
}
