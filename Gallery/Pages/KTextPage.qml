pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("Text in a colour set's colour, with its role and name for assistive technology.")
    controls: [
        PropertyText { id: text; label: "text"; value: qsTr("The quick brown fox jumps over the lazy dog") },
        PropertyColorSet { id: colorName; label: "textColorSetName"; initial: "text-primary" },
        PropertyChoice { id: fontChoice; label: "font"; options: ["bodySecondary", "title", "bannerPrimary", "tagLabelSecondary"] },
        PropertySlider { id: width; label: "width"; from: 40; to: 560; value: 400 },
        PropertyChoice { id: alignment; label: "horizontalAlignment"; options: ["AlignLeft", "AlignHCenter", "AlignRight"] },
        PropertySwitch { id: wrap; label: "wrapMode: Text.Wrap" },
        PropertySwitch { id: elided; label: "elide: Text.ElideRight"; value: true },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        KFrame {
            width: Math.min(width.value, 560)
            height: sample.height
            backgroundColorSetName: "transparent"

            KText {
                id: sample

                width: parent.width
                topPadding: 12
                bottomPadding: 12
                text: text.value
                font: FontConstants[fontChoice.value]
                textColorSetName: colorName.colorSetName
                horizontalAlignment: [Text.AlignLeft, Text.AlignHCenter, Text.AlignRight][alignment.currentIndex]
                wrapMode: wrap.value ? Text.Wrap : Text.NoWrap
                elide: elided.value ? Text.ElideRight : Text.ElideNone
                enabled: enabledSwitch.value
                onTruncatedChanged: page.log(truncated ? qsTr("truncated") : qsTr("no longer truncated"))
                onEmptyChanged: page.log(empty ? qsTr("empty") : qsTr("no longer empty"))
            }
        }
    }
    Sheet {
        title: qsTr("Colours")

        Repeater {
            model: [
                "text-primary", "text-secondary", "label-error-text", "label-success-text", "label-warning-text",
                "hyperlink-accent-text"
            ]

            Cell {
                id: colorCell

                required property string modelData

                label: modelData

                KText { text: qsTr("Hello, world"); textColorSetName: colorCell.modelData }
            }
        }
    }
    Sheet {
        title: qsTr("States")
        text: qsTr("Of a link's colour set; the text follows the state of controlsTarget.")
        minimumCellWidth: 100

        Repeater {
            model: ExampleStates.all

            Cell {
                id: stateCell

                required property StateRecord modelData

                label: modelData.name

                KText {
                    text: qsTr("Hello")
                    font: FontConstants.hyperlinkSecondary
                    controlsTarget: stateCell.modelData
                    textColorSetName: "hyperlink-accent-text"
                }
            }
        }
    }
    Sheet {
        title: qsTr("Length")
        minimumCellWidth: 230

        Cell {
            id: elideCell

            label: "elide: Text.ElideRight"

            KText { width: elideCell.stageWidth - 32; text: text.value; elide: Text.ElideRight }
        }
        Cell {
            id: middleCell

            label: "elide: Text.ElideMiddle"

            KText { width: middleCell.stageWidth - 32; text: text.value; elide: Text.ElideMiddle }
        }
        Cell {
            id: wrapCell

            label: "wrapMode: Text.Wrap"

            KText { width: wrapCell.stageWidth - 32; text: text.value; wrapMode: Text.Wrap }
        }
        Cell {
            id: linesCell

            label: "maximumLineCount: 2"

            KText { width: linesCell.stageWidth - 32; text: text.value + ". " + text.value; wrapMode: Text.Wrap; maximumLineCount: 2; elide: Text.ElideRight }
        }
    }
    Sheet {
        title: qsTr("Formats")
        minimumCellWidth: 230

        Cell {
            label: "textFormat: Text.RichText"

            KText { textFormat: Text.RichText; text: qsTr("<b>Bold</b>, <i>italic</i> and <u>underlined</u>") }
        }
        Cell {
            label: "textWithEmojis"
            note: qsTr("emoji become pictures in rich text")

            KText { textFormat: Text.RichText; textWithEmojis: qsTr("Well done 🎉 👍🏽") }
        }
        Cell {
            label: "leftPadding: 0; rightPadding: 0"
            note: qsTr("the padding is 12 by default")

            KText { leftPadding: 0; rightPadding: 0; text: qsTr("Hello, world") }
        }
        Cell {
            label: qsTr("from right to left")
            note: qsTr("the text decides, not the layout")

            KText { text: "مرحبا بالعالم – שלום" }
        }
        Cell {
            label: "themeType: \"dark\""
            stageColorSetName: "closedcaption-background-dark"

            KText { text: qsTr("Always on dark"); themeType: "dark" }
        }
    }
}
