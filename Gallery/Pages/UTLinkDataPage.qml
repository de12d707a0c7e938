pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("The links of a text: Left and Right walk them, Return opens the one with the ring.")
    controls: [
        PropertyText { id: linkText; label: qsTr("Text of a link"); value: qsTr("a link that is so long that it needs more than one line") },
        PropertySlider { id: width; label: qsTr("Width"); from: 160; to: 400; value: 240 },
        PropertySwitch { id: wholeSwitch; label: qsTr("Focus the text as a whole") }
    ]

    UTLinkData {
        id: linkData

        textItem: text
        onHasLinkChanged: page.log(qsTr("hasLink is %1").arg(hasLink))
        onCurrentLinkChanged: page.log(qsTr("currentLink is \"%1\", \"%2\"%3").arg(currentLink).arg(currentLinkText)
            .arg(customAnnounce ? qsTr(", to be announced") : ""))
    }
    Playground {
        stageHeight: 240

        TextEdit {
            id: text

            readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet("text-primary", "global")
            readonly property kColorSet linkColorSet: ThemeManager.globalTheme, App.getColorSet("button-hyperlink-text", "global")

            width: Math.min(width.value, page.width - 4 * Metrics.huge)
            readOnly: true
            activeFocusOnTab: true
            textFormat: TextEdit.RichText
            wrapMode: TextEdit.Wrap
            horizontalAlignment: TextEdit.AlignLeft
            color: textColorSet.normal
            font: FontConstants.bodySecondary
            text: "<style>a { color: %1 }</style>%2".arg(linkColorSet.normal).arg(qsTr("Read <a href=\"https://example.org/first\">the first page</a>, then <a href=\"https://example.org/long\">%1</a>, and write to <a href=\"mailto:ada@example.org\">Ada</a>.").arg(linkText.value))

            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Text with links")

            UTEventFilterData.listenFocusIn: true
            UTEventFilterData.onFocusInEvent: focusReason => linkData.handleFocusInOut(focusReason, !wholeSwitch.value)
            Keys.onLeftPressed: event => { event.accepted = linkData.handleLinkFocus(false); }
            Keys.onRightPressed: event => { event.accepted = linkData.handleLinkFocus(true); }
            Keys.onReturnPressed: page.log(qsTr("openUrl: %1").arg(linkData.openUrl(linkData.currentLink)))
            onTextChanged: linkData.updateLinkInfoList()
            onWidthChanged: linkData.onSizeChanged()
            onCursorPositionChanged: linkData.setCursorPosition(cursorPosition)

            Repeater {
                model: text.activeFocus && App.isKeyboardFocus ? linkData.linkArea : []

                KFrame {
                    required property var modelData

                    x: modelData.x - 2
                    y: modelData.y
                    width: modelData.width + 4
                    height: modelData.height
                    radius: 4
                    borderWidth: 2
                    backgroundColorSetName: "transparent"
                    borderColorSetName: "global-focus-outline"
                }
            }
            FocusRing {}
        }
    }
}
