/*!
    An empty item. Components use it instead of Item as the root of a subtree, so that snapshot tooling finds it.

    \qml
    KItem { KText { text: "Part of a component" } }
    \endqml
*/
import QtQuick

Item {}
