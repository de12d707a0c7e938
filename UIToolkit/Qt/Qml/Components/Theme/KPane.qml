/*!
    A pane on a themed frame; without a border until one is named.

    \qml
    KPane { radius: 8; KText { text: "Content" } }
    \endqml
*/
import QtQuick
import QtQuick.Controls.Basic

Pane {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var controlsTarget: control
    property alias backgroundColorSetName: frame.backgroundColorSetName
    property alias radius: frame.radius
    property alias borderColorSetName: frame.borderColorSetName
    property alias borderWidth: frame.borderWidth

    background: KFrame {
        id: frame

        themeType: control.themeType
        controlsTarget: control.controlsTarget
        borderColorSetName: ""
        borderWidth: 0
    }
}
