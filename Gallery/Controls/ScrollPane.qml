/*!
    Content that scrolls when it is higher than its room; then it is a stop of the Tab key itself, to be scrolled by keys.
    What gets the focus in it scrolls into view.
*/
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Gallery

Flickable {
    id: control

    //! What is scrolled, for assistive technology.
    property string name
    readonly property Item focusedItem: Window.activeFocusItem

    function scrollTo(y: real): void {
        contentY = Math.max(0, Math.min(contentHeight - height, y));
    }

    contentWidth: width
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: contentHeight > height || activeFocus

    T.ScrollBar.vertical: ThinScrollBar {}

    onFocusedItemChanged: {
        for (let ancestor = focusedItem?.parent; ancestor; ancestor = ancestor.parent) {
            if (ancestor !== contentItem)
                continue;
            const top = focusedItem.mapToItem(contentItem, 0, 0).y - Metrics.large;
            const bottom = top + focusedItem.height + 2 * Metrics.large;
            if (top < contentY || bottom - top > height)
                scrollTo(top);
            else if (bottom > contentY + height)
                scrollTo(bottom - height);
            return;
        }
    }

    Keys.onPressed: event => {
        const distance = priv.distances[event.key];
        if (distance === undefined || !activeFocus || contentHeight <= height) {
            event.accepted = false;
            return;
        }
        scrollTo(contentY + distance * height);
        event.accepted = true;
    }

    Accessible.role: Accessible.Pane
    Accessible.name: name
    Accessible.focusable: activeFocusOnTab

    FocusRing {
        parent: control
        designatedParent: control
        cornerRadius: 0
    }

    QtObject {
        id: priv

        // By key, in heights of the pane.
        readonly property var distances: ({
            [Qt.Key_Up]: -0.1,
            [Qt.Key_Down]: 0.1,
            [Qt.Key_PageUp]: -0.9,
            [Qt.Key_PageDown]: 0.9,
            [Qt.Key_Home]: -Infinity,
            [Qt.Key_End]: Infinity
        })
    }
}
