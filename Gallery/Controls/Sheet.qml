/*!
    A titled group of examples on a page.

    \qml
    Sheet { title: qsTr("States"); Cell { label: qsTr("Disabled"); KText { text: "Hello"; enabled: false } } }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import Gallery

Column {
    id: control

    default property alias cells: grid.data
    property string title
    property string text
    property alias minimumCellWidth: grid.minimumCellWidth
    property alias cellSpacing: grid.spacing

    width: parent?.width ?? 0
    spacing: Metrics.small

    GalleryText {
        width: parent.width
        visible: control.title.length > 0
        text: control.title
        font: FontConstants.subheaderPrimary
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    GalleryText {
        width: parent.width
        bottomPadding: Metrics.tiny
        visible: control.text.length > 0
        text: control.text
        wrapMode: Text.Wrap
        textColorSetName: "text-secondary"
    }
    SheetGrid {
        id: grid

        width: parent.width
    }
}
