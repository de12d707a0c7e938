/*!
    A pop-over that takes what it is to be from a model.

    \qml
    UTPopOverWrapper { model: UTPopOverModel { arrowAnchor: UTPopOverEnum.Bottom } content: details; active: button.checked }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: control

    //! Without one, or once it is gone, the pop-over is as a model is by default.
    required property UTPopOverModel model
    property alias active: popOver.active
    property alias content: popOver.content
    property alias targetItem: popOver.targetItem

    UTPopOver {
        id: popOver

        targetItem: control.parent
        arrowAlignment: control.model?.arrowAlignment ?? UTPopOverEnum.CenterAlignment
        arrowAnchor: control.model?.arrowAnchor ?? UTPopOverEnum.Top
        popOverSize: control.model?.size ?? UTPopOverEnum.Small
        arrowOffset: control.model?.arrowOffset ?? 0
        showWithActive: control.model?.showWithActive ?? true
    }
}
