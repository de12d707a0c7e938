pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("The ready fonts of the design system, with the sizes and weights they are made of.")
    controls: [
        PropertyText { id: sample; label: qsTr("Sample"); value: qsTr("Almost before we knew it") },
        PropertyText { id: filter; label: qsTr("Presets whose name holds") }
    ]

    readonly property list<string> sizes: ["extraLarge", "large", "medium", "mediumSmall", "small", "extraSmall"]
    readonly property list<string> presets: [
        "bannerPrimary", "bannerSecondary", "bannerTertiary", "title", "spaceHeader", "spaceHeaderBold", "header",
        "subheaderPrimary", "subheaderSecondary", "bodyPrimary", "bodyPrimarySemibold", "bodyPrimaryBold",
        "bodySecondary", "bodySecondarySemibold", "bodySecondaryBold", "bodySecondaryItalic", "bodyTertiary",
        "bodyLight", "hyperlinkPrimary", "hyperlinkPrimaryBold", "hyperlinkSecondary", "highlightSecondary",
        "highlightCompact", "tagLabelSecondary", "tagLabelTertiary", "codeBlocks", "emoji"
    ]

    function facts(font: font): string {
        return qsTr("%1, %2 pixels, weight %3").arg(font.family).arg(font.pixelSize).arg(font.weight);
    }

    Sheet {
        title: qsTr("Presets")
        minimumCellWidth: 600
        cellSpacing: 0

        Repeater {
            model: page.presets.filter(preset => preset.toLowerCase().includes(filter.value.toLowerCase()))

            Item {
                id: row

                required property string modelData
                readonly property font preset: FontConstants[modelData]

                width: (parent as SheetGrid)?.cellWidth ?? 0
                height: Math.max(name.height, line.height) + 2 * Metrics.small

                Column {
                    id: name

                    anchors.verticalCenter: parent.verticalCenter
                    anchors.left: parent.left
                    width: 210

                    GalleryText { width: parent.width; text: row.modelData; wrapMode: Text.Wrap; font: FontConstants.tagLabelSecondary }
                    GalleryText {
                        width: parent.width
                        text: page.facts(row.preset)
                        wrapMode: Text.Wrap
                        font: FontConstants.tagLabelTertiary
                        textColorSetName: "text-secondary"
                    }
                }
                GalleryText {
                    id: line

                    anchors.verticalCenter: parent.verticalCenter
                    anchors.left: name.right
                    anchors.right: parent.right
                    anchors.leftMargin: Metrics.large
                    text: row.modelData === "emoji" ? "😀 🎉 👍 ❤️ 🚀" : sample.value
                    font: row.preset
                    elide: Text.ElideRight
                }
                KSeparator { anchors.bottom: parent.bottom }
            }
        }
    }
    Sheet {
        title: qsTr("Sizes")
        text: qsTr("In pixels, times the application's text scale of %1.").arg(App.textScale)
        minimumCellWidth: 96

        Repeater {
            model: page.sizes

            Cell {
                id: sizeCell

                required property string modelData

                label: modelData
                note: qsTr("%1 px").arg(FontConstants[modelData])

                GalleryText { text: "Ag"; font.family: FontConstants.defaultFamily; font.pixelSize: FontConstants[sizeCell.modelData] }
            }
        }
    }
}
