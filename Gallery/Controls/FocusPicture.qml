/*!
    Shows the focus ring of a button, as an example of the look that it has while the keyboard is on it.

    \qml
    FocusPicture { button: example; parent: example }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0

KBasicFocusItem {
    id: control

    //! A button of the library, whose focus ring is shown. One without a ring shows none.
    required property var button

    x: customRect.x
    y: customRect.y
    width: isCustomRect ? customRect.width : parent?.width ?? 0
    height: isCustomRect ? customRect.height : parent?.height ?? 0
    visible: false

    Component.onCompleted: {
        const settings = {};
        button.focusRingWanted?.(settings);
        for (const [name, value] of Object.entries(settings)) {
            control[name] = typeof value === "function" ? Qt.binding(value) : value;
            visible = true;
        }
    }

    KFocusItemCanvas {
        focusItem: control
        anchors {
            fill: parent
            margins: -control.extraSpace
        }
    }
}
