pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("Helpers for numbers, times and rectangles, and the box of the link under the pointer.")
    readonly property rect noBox: Qt.rect(0, 0, 0, 0)

    controls: [
        PropertySlider { id: number; label: qsTr("Number"); from: -100000; to: 100000; value: -12345 },
        PropertySlider { id: seconds; label: qsTr("Seconds elapsed"); to: 200000; value: 90061 }
    ]

    Playground {
        TextEdit {
            id: edit

            property rect linkBox: page.noBox
            readonly property color linkColor: (ThemeManager.globalTheme, App.getColorSet("hyperlink-accent-text").normal)

            width: 320
            readOnly: true
            activeFocusOnPress: false
            textFormat: TextEdit.RichText
            wrapMode: TextEdit.Wrap
            font: FontConstants.bodyPrimary
            color: (ThemeManager.globalTheme, App.getColorSet("text-primary").normal)
            text: qsTr("Point at <a href='1' style='color: %1'>a link that is long enough to wrap over a line</a> or at <a href='2' style='color: %1'>a short one</a> to see its box.").arg(linkColor)
            Accessible.role: Accessible.StaticText
            Accessible.name: getText(0, length)

            HoverHandler {
                onPointChanged: edit.linkBox = DataUtils.hyperlinkBoundingRect(edit, point.position.x, point.position.y) ?? page.noBox
            }
            KFrame {
                x: edit.linkBox.x
                y: edit.linkBox.y
                width: edit.linkBox.width
                height: edit.linkBox.height
                visible: width > 0
                backgroundColorSetName: ""
                borderColorSetName: "global-focus-outline"
            }
            onLinkBoxChanged: page.log("hyperlinkBoundingRect: %1".arg(linkBox))
        }
    }
    Sheet {
        title: qsTr("Numbers and times")

        Cell {
            label: "numDigits(%1)".arg(number.value)

            KText { text: DataUtils.numDigits(number.value); font: FontConstants.title }
        }
        Cell {
            id: time

            readonly property var elapsed: DataUtils.timeElapsedBetween(0, seconds.value * 1000)

            label: "timeElapsedBetween"
            note: qsTr("whole days are dropped")

            KText { text: "%1 : %2 : %3".arg(time.elapsed.hours).arg(time.elapsed.minutes).arg(time.elapsed.seconds); font: FontConstants.title }
        }
        Cell {
            label: "areNumbersEqual(0.1 + 0.2, 0.3)"

            KText { text: DataUtils.areNumbersEqual(0.1 + 0.2, 0.3); font: FontConstants.title }
        }
    }
}
