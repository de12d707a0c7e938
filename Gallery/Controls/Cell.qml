/*! One example in a sheet: the example in the middle of its stage, and below what it shows. */
import QtQuick
import UIToolkitQml 1.0
import Gallery

Card {
    id: control

    default property alias example: example.data
    property string label
    property string note
    property real stageHeight: 88
    //! The ground behind the example, where it needs another one than the card's.
    property string stageColorSetName: "transparent"
    readonly property alias stageWidth: stage.width
    readonly property SheetGrid grid: parent as SheetGrid

    width: grid?.cellWidth ?? 0
    height: grid?.cellHeight ?? implicitHeight
    implicitHeight: stage.height + caption.height

    KRectangle {
        id: stage

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: 1
        }
        height: Math.max(control.stageHeight, example.height + 2 * Metrics.large)
        radius: control.radius - 1
        backgroundColorSetName: control.stageColorSetName

        Item {
            id: example

            anchors.centerIn: parent
            width: childrenRect.width
            height: childrenRect.height
        }
    }
    Column {
        id: caption

        anchors {
            left: parent.left
            right: parent.right
            top: stage.bottom
            margins: Metrics.medium
            topMargin: 0
        }
        topPadding: stage.color.a > 0 ? Metrics.small : 0
        bottomPadding: Metrics.medium
        spacing: 2

        GalleryText {
            width: parent.width
            visible: text.length > 0
            text: control.label
            wrapMode: Text.Wrap
            font: FontConstants.tagLabelSecondary
        }
        GalleryText {
            width: parent.width
            visible: text.length > 0
            text: control.note
            wrapMode: Text.Wrap
            font: FontConstants.tagLabelTertiary
            textColorSetName: "text-secondary"
        }
    }
}
