/*!
    A pop-over that takes what it is to be from a model.

    \qml
    UTPopOverWrapper { model: UTPopOverModel { arrowAnchor: UTPopOverEnum.Bottom } content: details; active: button.checked }
    \endqml
*/
import QtQuick
import Korvu 1.0

Item {
    id: control

    required property UTPopOverModel model
    property alias active: popOver.active
    property alias content: popOver.content
    property alias targetItem: popOver.targetItem

    UTPopOver {
        id: popOver

        targetItem: control.parent
        arrowAlignment: control.model.arrowAlignment
        arrowAnchor: control.model.arrowAnchor
        popOverSize: control.model.size
        arrowOffset: control.model.arrowOffset
        showWithActive: control.model.showWithActive
    }
}
