/*!
    The keys under which components hand accessibility texts to one another.

    \qml
    Item { readonly property var accessibleTexts: ({ [AccessibleConstants.name]: "Inbox" }) }
    \endqml
*/
pragma Singleton

import QtQml

QtObject {
    readonly property string name: "name"
    readonly property string description: "description"
    readonly property string popupName: "popupName"
    readonly property string leftItemName: "leftItemName"
    readonly property string leftItemDescription: "leftItemDescription"
    readonly property string middleItemName: "middleItemName"
    readonly property string middleItemDescription: "middleItemDescription"
    readonly property string rightItemName: "rightItemName"
    readonly property string rightItemDescription: "rightItemDescription"
}
