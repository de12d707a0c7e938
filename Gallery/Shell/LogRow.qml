/*! One entry of a log. */
import QtQuick
import UIToolkitQml 1.0
import Gallery

Row {
    id: control

    property string head
    property string body

    width: ListView.view?.width ?? 0
    spacing: Metrics.small

    SilentText {
        id: headText

        text: control.head
        font: FontConstants.highlightCompact
        textColorSetName: "text-secondary"
    }
    SilentText {
        width: control.width - headText.width - control.spacing
        text: control.body
        font: FontConstants.tagLabelTertiary
        wrapMode: Text.Wrap
    }
}
