pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Colour")
    description: qsTr("Every colour set of the palette in the present theme, in all six states.")
    controls: [
        PropertyText { id: filter; label: qsTr("Sets whose name holds"); prompt: qsTr("button, text, border ...") },
        PropertyChoice { id: theme; label: qsTr("Theme"); options: ["global", "light", "dark", "highContrast"] },
        PropertySwitch { id: values; label: qsTr("Show the values") }
    ]

    readonly property list<string> states: ["normal", "hovered", "pressed", "focused", "checked", "disabled"]
    readonly property real swatchWidth: Math.round((values.value ? 68 : 56) * Math.max(1, App.textScale))
    readonly property var names: ThemeManager.colorSetNames()
    readonly property var shown: {
        const words = filter.value.toLowerCase().split(" ");
        return names.filter(name => words.every(word => name.toLowerCase().includes(word)));
    }

    Sheet {
        title: qsTr("%1 of %2 sets").arg(page.shown.length).arg(page.names.length)
        minimumCellWidth: 600
        cellSpacing: 0

        Item {
            width: (parent as SheetGrid)?.cellWidth ?? 0
            height: stateNames.height + Metrics.tiny

            Row {
                id: stateNames

                anchors.right: parent.right
                anchors.rightMargin: Metrics.medium
                spacing: Metrics.tiny

                Repeater {
                    model: page.states

                    GalleryText {
                        required property string modelData

                        width: page.swatchWidth
                        text: modelData
                        horizontalAlignment: Text.AlignHCenter
                        font: FontConstants.tagLabelTertiary
                        textColorSetName: "text-secondary"
                    }
                }
            }
        }
        // Some hundred sets of six colours: only those in sight exist.
        ListView {
            id: list

            width: (parent as SheetGrid)?.cellWidth ?? 0
            height: Math.min(contentHeight, 600)
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            reuseItems: true
            model: page.shown
            activeFocusOnTab: true
            keyNavigationEnabled: true
            delegate: Item {
                id: row

                required property int index
                required property string modelData
                readonly property kColorSet colorSet: ThemeManager.globalTheme, App.getColorSet(modelData, theme.value)

                width: list.width
                height: Math.max(name.height, swatches.height) + 2 * Metrics.tiny

                Accessible.role: Accessible.ListItem
                Accessible.name: modelData
                Accessible.focusable: true

                GalleryText {
                    id: name

                    anchors.left: parent.left
                    anchors.right: swatches.left
                    anchors.rightMargin: Metrics.small
                    anchors.verticalCenter: parent.verticalCenter
                    leftPadding: Metrics.small
                    text: row.modelData
                    wrapMode: Text.WrapAnywhere
                    font: FontConstants.tagLabelTertiary
                    Accessible.ignored: true
                }
                Row {
                    id: swatches

                    anchors.right: parent.right
                    anchors.rightMargin: Metrics.medium
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: Metrics.tiny

                    Repeater {
                        model: page.states

                        Column {
                            id: entry

                            required property string modelData
                            readonly property color shade: row.colorSet[modelData]

                            Swatch { width: page.swatchWidth; height: 26; color: entry.shade }
                            GalleryText {
                                width: page.swatchWidth
                                visible: values.value
                                text: entry.shade.toString()
                                font.pixelSize: 11
                                horizontalAlignment: Text.AlignHCenter
                            }
                        }
                    }
                }
                FocusRing { designatedParent: row }
            }

            Accessible.role: Accessible.List
            Accessible.name: qsTr("Colour sets")
        }
    }
}
