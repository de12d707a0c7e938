/*! A name and its value. */
import QtQuick
import Gallery

Row {
    id: control

    property string title
    property string value
    property real titleWidth: 88

    width: parent?.width ?? 0
    spacing: Metrics.small

    SilentText {
        width: control.titleWidth
        text: control.title
        wrapMode: Text.Wrap
        textColorSetName: "text-secondary"
    }
    SilentText {
        width: control.width - control.titleWidth - control.spacing
        text: control.value.length > 0 ? control.value : qsTr("–")
        wrapMode: Text.Wrap
    }
}
