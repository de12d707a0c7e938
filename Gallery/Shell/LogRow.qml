/*! One entry of a log. */
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

Row {
    id: control

    property string head
    property string body

    width: ListView.view?.width ?? 0
    spacing: Metrics.small

    GalleryText {
        id: headText

        text: control.head
        font: FontConstants.highlightCompact
        textColorSetName: "text-secondary"
        Accessible.ignored: true
    }
    GalleryText {
        width: control.width - headText.width - control.spacing
        text: control.body
        accessibleText: qsTr("%1 %2").arg(control.head).arg(control.body)
        font: FontConstants.tagLabelTertiary
        wrapMode: Text.Wrap
    }
}
