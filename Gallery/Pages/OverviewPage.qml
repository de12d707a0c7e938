pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Start")
    description: qsTr("Everything that the library has so far, a page for each component.")

    KGradientRectangle {
        width: page.width
        height: intro.height + 2 * Metrics.huge
        radius: Metrics.radius
        gradientOrientation: Gradient.Horizontal
        gradientStartColourSetName: "coachmarkteaching-background"
        gradientEndColourSetName: "button-accent-fill-background"

        Column {
            id: intro

            x: Metrics.huge
            y: Metrics.huge
            width: parent.width - 2 * x
            spacing: Metrics.small

            GalleryText {
                width: parent.width
                text: qsTr("One set of parts, three themes, both directions")
                font: FontConstants.bannerPrimary
                wrapMode: Text.Wrap
                textColorSetName: "coachmarkteaching-button-secondary-text"
                Accessible.role: Accessible.Heading
            }
            GalleryText {
                width: parent.width
                text: qsTr("Each page shows a component in all its variants and states. Change its properties in the panel beside it, watch its signals, and read what a screen reader is told.")
                wrapMode: Text.Wrap
                font: FontConstants.bodyPrimary
                textColorSetName: "coachmarkteaching-button-secondary-text"
            }
        }
    }
    Sheet {
        title: qsTr("Pages")
        minimumCellWidth: 200

        Repeater {
            model: PageModel { filter: "" }

            T.Button {
                id: tile

                required property string name
                required property string category
                required property string description
                readonly property SheetGrid grid: parent as SheetGrid

                width: grid?.cellWidth ?? 0
                height: grid?.cellHeight ?? 0
                implicitHeight: texts.implicitHeight + 2 * Metrics.large
                visible: name !== Session.page
                text: name
                hoverEnabled: true
                padding: Metrics.large
                background: Card { controlsTarget: tile }
                contentItem: Column {
                    id: texts

                    spacing: 2

                    GalleryText {
                        width: parent.width
                        text: tile.category
                        font: FontConstants.tagLabelTertiary
                        wrapMode: Text.Wrap
                        textColorSetName: "hyperlink-accent-text"
                        Accessible.ignored: true
                    }
                    GalleryText {
                        width: parent.width
                        text: tile.name
                        font: FontConstants.subheaderSecondary
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                    GalleryText {
                        width: parent.width
                        text: tile.description
                        font: FontConstants.tagLabelTertiary
                        wrapMode: Text.Wrap
                        textColorSetName: "text-secondary"
                        Accessible.ignored: true
                    }
                }
                onClicked: Session.page = name

                Keys.onReturnPressed: click()
                Keys.onEnterPressed: click()

                FocusRing { cornerRadius: Metrics.radius }

                Accessible.role: Accessible.Link
                Accessible.name: name
                Accessible.description: description
                Accessible.onPressAction: click()
            }
        }
    }
}
