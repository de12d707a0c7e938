/*!
    The focus ring of the gallery's controls. It lies inside them, for most of them fill a list or a bar, and scrolls and
    clips with the list or page that they are in.
*/
import QtQuick
import UIToolkitQml 1.0
import Gallery

KCustomFocusItem {
    function scrolledContent(): Item {
        for (let ancestor = parent; ancestor; ancestor = ancestor.parent) {
            if (ancestor instanceof Flickable)
                return ancestor.contentItem;
        }
        return null;
    }

    isRectangle: true
    cornerRadius: Metrics.smallRadius
    innerFocusBorder: true
    designatedParent: visible ? scrolledContent() ?? undefined : undefined
}
