/*!
    A faint shadow below and to the right of its parent, behind the parent's face. The effect renders its source anew
    to do so, itself included if it lies in there: where that shows, give it a sibling for a source.

    \qml
    Item { KRectangle { id: face; anchors.fill: parent; radius: 8 } KDropShadow { source: face } }
    \endqml
*/
import Qt5Compat.GraphicalEffects

DropShadow {
    anchors.fill: parent
    source: parent
    horizontalOffset: 2
    verticalOffset: 2
    radius: 2
    samples: 2 * radius + 1
    color: "#10000000"
    z: -1
}
