pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery
import UIToolkitQml_Private_Data 1.0

GalleryPage {
    id: page

    category: qsTr("Text")
    description: qsTr("A text area made a compose area: bold, italic, underline, headings, bullets and links, and nothing else that is pasted.")
    controls: [
        PropertySwitch { id: bullets; label: "automaticBullets" },
        PropertySlider { id: limit; label: "maxLength"; to: 500; stepSize: 10; value: 0 },
        PropertySwitch { id: readOnly; label: "readOnly" },
        PropertyText { id: linkText; label: qsTr("Text of the link"); value: qsTr("example") },
        PropertyText { id: linkTarget; label: qsTr("Target of the link"); value: "example.org" }
    ]

    Playground {
        id: playground

        stageHeight: 360

        Column {
            width: playground.stageWidth
            spacing: Metrics.medium

            Flow {
                width: parent.width
                spacing: Metrics.small
                enabled: !area.readOnly

                Repeater {
                    model: [
                        { text: qsTr("Bold"), format: "bold" },
                        { text: qsTr("Italic"), format: "italic" },
                        { text: qsTr("Underline"), format: "underline" },
                        { text: qsTr("Heading 1"), format: "heading1" },
                        { text: qsTr("Heading 2"), format: "heading2" },
                        { text: qsTr("Heading 3"), format: "heading3" }
                    ]

                    ToolButton {
                        required property var modelData
                        readonly property bool active: area.UTRichTextAreaData[modelData.format]

                        text: modelData.text
                        buttonStyle: active ? UTButtonStyle.Primary : UTButtonStyle.Secondary
                        onClicked: area.toggle(modelData.format)

                        Accessible.checkable: true
                        Accessible.checked: active
                    }
                }
                ToolButton { text: qsTr("Link"); leftIcon: "link-bold"; onClicked: area.UTRichTextAreaData.addLink(linkText.value, linkTarget.value) }
                ToolButton { text: qsTr("Mention"); onClicked: area.UTRichTextAreaData.addLink("@" + linkText.value, UIToolKitUtils.mentionLink) }
                ToolButton { text: qsTr("Paste"); onClicked: area.paste() }
                ToolButton { text: qsTr("Plain model"); onClicked: area.UTRichTextAreaData.removeUnsupportedFormats() }
                ToolButton { text: qsTr("Undo"); leftIcon: "reset-bold"; enabled: area.canUndo; onClicked: area.undo() }
                ToolButton { text: qsTr("Redo"); leftIcon: "refresh-bold"; enabled: area.canRedo; onClicked: area.redo() }
            }
            KFrame {
                width: parent.width
                height: Math.max(200, area.contentHeight + area.topPadding + area.bottomPadding)
                radius: Metrics.radius
                controlsTarget: frameState
                backgroundColorSetName: "textinput-background"
                borderColorSetName: "textinput-border"

                T.TextArea {
                    id: area

                    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet("textinput-text", "global")
                    readonly property kColorSet linkColorSet: ThemeManager.globalTheme, App.getColorSet("hyperlink-accent-text", "global")
                    readonly property kColorSet selectionColorSet: ThemeManager.globalTheme, App.getColorSet("text-highlight", "global")
                    readonly property kColorSet selectedTextColorSet: ThemeManager.globalTheme, App.getColorSet("label-common-white-text", "global")

                    //! Turns the format called \a name on or off at the caret.
                    function toggle(name: string): void {
                        const data = area.UTRichTextAreaData;
                        data[name] = !data[name];
                        data["on" + name[0].toUpperCase() + name.slice(1) + "Changed"]();
                        page.log(name + ": " + data[name]);
                    }

                    //! In place of the text area's own, which would paste what it does not know.
                    function paste(): void { area.UTRichTextAreaData.pasteText(); }

                    anchors.fill: parent
                    leftPadding: Metrics.medium
                    rightPadding: Metrics.medium
                    topPadding: Metrics.small
                    bottomPadding: Metrics.small
                    textFormat: TextEdit.RichText
                    wrapMode: TextEdit.Wrap
                    persistentSelection: true
                    selectByMouse: true
                    readOnly: readOnly.value
                    font: FontConstants.bodyPrimary
                    color: textColorSet.normal
                    selectionColor: selectionColorSet.normal
                    selectedTextColor: selectedTextColorSet.normal
                    activeFocusOnTab: true

                    UTRichTextAreaData.textArea: area
                    UTRichTextAreaData.textDocument: area.textDocument
                    UTRichTextAreaData.cursorPosition: area.cursorPosition
                    UTRichTextAreaData.selectionStart: area.selectionStart
                    UTRichTextAreaData.selectionEnd: area.selectionEnd
                    UTRichTextAreaData.maxLength: limit.value
                    UTRichTextAreaData.automaticBullets: bullets.value
                    UTRichTextAreaData.linkColor: area.linkColorSet.normal
                    UTRichTextAreaData.readOnly: area.readOnly
                    UTRichTextAreaData.onShouldApplyNewFormattingChanged: page.log(qsTr("format pending: %1").arg(area.UTRichTextAreaData.shouldApplyNewFormatting))
                    UTRichTextAreaData.onBulletListDirtyChanged: page.log(qsTr("bullets dirty: %1").arg(area.UTRichTextAreaData.bulletListDirty))
                    UTRichTextAreaData.onModifiedChanged: page.log(qsTr("modified: %1").arg(area.UTRichTextAreaData.modified))

                    onTextChanged: exported.text = area.UTRichTextAreaData.getStdHtml()
                    Component.onCompleted: {
                        area.UTRichTextAreaData.replaceText(priv.example);
                        area.UTRichTextAreaData.clearUndoRedoStacks();
                        area.UTRichTextAreaData.modified = false;
                    }

                    // Tab belongs to the page: a text area would write it.
                    Keys.onTabPressed: area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                    Keys.onBacktabPressed: area.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

                    Accessible.role: Accessible.EditableText
                    Accessible.name: qsTr("Message")
                    Accessible.multiLine: true

                    FocusRing {}
                }
            }
        }
    }
    Sheet {
        title: qsTr("Exported HTML")
        text: qsTr("What the application gets, as it changes. Text is not escaped.")
        minimumCellWidth: 400

        Cell {
            id: exportCell

            stageHeight: 120

            GalleryText {
                id: exported

                width: exportCell.stageWidth - 2 * Metrics.large
                wrapMode: Text.Wrap
            }
        }
    }
    Sheet {
        title: qsTr("Shortcuts")
        minimumCellWidth: 180

        Repeater {
            model: [
                { keys: "Ctrl+B, Ctrl+I, Ctrl+U", note: qsTr("the word at the caret, and what is typed next") },
                { keys: "Ctrl+V", note: qsTr("pastes what the compose area supports") },
                { keys: "Shift+Return", note: qsTr("a new line in the same paragraph") }
            ]

            Cell {
                id: shortcut

                required property var modelData

                note: modelData.note

                GalleryText { text: shortcut.modelData.keys; font: FontConstants.bodySecondarySemibold }
            }
        }
    }

    // Of the text area, for the frame: "pressed" is a signal of text areas, so the area itself would look pressed.
    QtObject {
        id: frameState

        readonly property bool enabled: area.enabled
        readonly property bool hovered: area.hovered
        readonly property bool activeFocus: area.activeFocus
    }
    QtObject {
        id: priv

        readonly property string example: qsTr("<h2>Release notes</h2><p>Type, paste and format <b>here</b>. <a href=\"https://example.org\">Links</a> and <a href=\"%1\">@mentions</a> have a colour of their own.</p><ul><li>one</li><li>two</li></ul>").arg(UIToolKitUtils.mentionLink)
    }

    component ToolButton: UTPillButton {
        focusPolicy: Qt.TabFocus
        buttonStyle: UTButtonStyle.Secondary
        buttonSize: UTButtonSize.L
    }
}
