/*!
    A rectangle whose colour comes from an attached native data object, as in the components that have one.
*/
import QtQuick
// Its plugin holds the next module.
import UIToolkitQml 1.0 // qmllint disable unused-imports
import UIToolkitQml_Private_Data 1.0

Rectangle {
    id: control

    UTColorSetData.eventData: UTEventData {
        enabled: control.enabled
    }
    UTColorSetData.themeType: "global"
    UTColorSetData.backgroundColorData.token: "button-primary-background"
    color: UTColorSetData.backgroundColorData.color
}
