/*!
    Shows the focus ring around its parent while the parent has the focus and the user navigates by keyboard.

    \qml
    KRectangle { activeFocusOnTab: true; KCustomFocusItem { isRectangle: true } }
    \endqml
*/
import QtQuick
import Korvu 1.0

KBasicFocusItem {
    id: control

    //! While visible, where the item lies in global coordinates.
    readonly property point globalPosition: {
        if (!visible || !parent)
            return Qt.point(0, 0);
        // Reads the geometry of every ancestor, so that the ring follows whichever of them moves or grows.
        let geometry = 0;
        for (let ancestor = parent; ancestor; ancestor = ancestor.parent)
            geometry += ancestor.x + ancestor.y + ancestor.height;
        return parent.mapToGlobal(x, y);
    }

    function updateCanvas(): void {
        if (visible) {
            canvasLoader.setSource("KFocusItemCanvas.qml", { focusItem: control });
            canvasLoader.active = true;
            canvasLoader.visible = true;
            placeCanvas();
        } else if (canvasLoader.active) {
            canvasLoader.visible = false;
            canvasLoader.active = false;
            canvasLoader.source = "";
            canvasLoader.parent = control;
        }
    }

    function placeCanvas(): void {
        if (!visible || !canvasLoader.active)
            return;
        let host = designatedParent ?? parent;
        while (!designatedParent && host.parent)
            host = host.parent;
        let branch = control;
        while (branch.parent && branch.parent !== host)
            branch = branch.parent;

        canvasLoader.parent = host;
        // Level with the branch of the tree that it belongs to (a popup, say) and, as the younger sibling, above it.
        canvasLoader.z = branch.z;
        const position = host.mapFromGlobal(globalPosition.x, globalPosition.y);
        canvasLoader.x = position.x - extraSpace;
        canvasLoader.y = position.y - extraSpace;
        canvasLoader.width = width + 2 * extraSpace;
        canvasLoader.height = height + 2 * extraSpace;
    }

    x: customRect.x
    y: customRect.y
    width: isCustomRect ? customRect.width : parent ? parent.width : 0
    height: isCustomRect ? customRect.height : parent ? parent.height : 0
    visible: parent !== null && parent.activeFocus && App.isKeyboardFocus

    onVisibleChanged: updateCanvas()
    onGlobalPositionChanged: placeCanvas()
    onWidthChanged: placeCanvas()
    onHeightChanged: placeCanvas()
    onExtraSpaceChanged: placeCanvas()
    onDesignatedParentChanged: placeCanvas()
    Component.onCompleted: updateCanvas()

    // Moves to its host while it shows, where nothing that clips or covers the item reaches it.
    Loader {
        id: canvasLoader

        active: false
        visible: false
    }
}
