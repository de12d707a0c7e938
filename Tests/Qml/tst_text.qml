import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 400
    height: 200

    KText {
        id: text

        property int focusChanges: 0

        onActiveFocusChanged: ++focusChanges
    }

    TextInput {
        id: input

        y: 100
        width: 100
    }

    TestCase {
        name: "KText"
        when: windowShown

        readonly property string emojis: "Hi \u{1F600} there"

        function init() {
            failOnWarning(/.?/);
            text.textFormat = Text.AutoText;
            text.refocusOnTextChange = false;
            text.text = "Some text";
        }

        function test_defaults() {
            compare(text.font, FontConstants.bodySecondary);
            compare([text.leftPadding, text.rightPadding, text.topPadding], [12, 12, 0]);
            compare([text.textWithEmojis, text.isParentGotVisualFocus], ["", false]);
            verify(!text.empty);
            text.text = "";
            verify(text.empty);
        }

        function test_accessibility() {
            compare(text.Accessible.role, Accessible.StaticText);
            compare([text.accessibleText, text.toolTipText], ["Some text", "Some text"]);
            const named = createTemporaryObject(namedComponent, root);
            compare(named.Accessible.name, "Spoken");
            named.text = "Other";
            compare(named.Accessible.name, "Spoken");
        }

        function test_emojisInPlainText() {
            text.textWithEmojis = emojis;
            compare(text.text, emojis);
            compare(text.textWithEWJEmojis, emojis);
            text.textWithEmojis = "";
        }

        function test_emojisInRichText() {
            text.textFormat = Text.RichText;
            text.setTextWithEmojis(emojis);
            compare(text.text, Utils.replaceEWJEmojisByImages(emojis, FontConstants.lineHeight(text.font)));
            verify(text.text.includes("<img"));
            compare(text.textWithEWJEmojis, emojis);
            text.text = "";
            text.textWithEmojis = emojis;
            verify(text.text.includes("<img"), "writing the property does the same");
            text.textWithEmojis = "";
        }

        function test_writingEmojisBreaksTheBinding() {
            const bound = createTemporaryObject(boundComponent, root);
            compare(bound.text, "first");
            bound.textWithEmojis = "emojis";
            bound.source = "second";
            compare(bound.text, "emojis");
        }

        function test_refocus() {
            input.forceActiveFocus();
            text.text = "Unheard";
            verify(input.activeFocus);

            const children = text.children.length;
            text.focusChanges = 0;
            text.refocusOnTextChange = true;
            text.text = "Heard";
            verify(text.activeFocus);
            text.text = "Heard again";
            verify(text.activeFocus);
            // On the first change the focus arrives, on the second it leaves and comes back.
            compare(text.focusChanges, 3);
            tryCompare(text.children, "length", children);
        }

        function test_mouseArea() {
            compare(text.textMouseArea.acceptedButtons, Qt.NoButton);
            verify(text.textMouseArea.propagateComposedEvents);
            mouseMove(text, 5, 5);
            tryVerify(() => text.textMouseArea.containsMouse);
            mouseMove(root, 390, 190);
            tryVerify(() => !text.textMouseArea.containsMouse);

            const clickable = createTemporaryObject(clickableComponent, root);
            mouseClick(clickable, 20, 5);
            mouseDoubleClickSequence(clickable, 20, 5);
            compare([clickable.clicks > 0, clickable.doubleClicks], [true, 1], "clicks pass through the text");
        }

        function test_rightToLeft() {
            text.text = "\u05e9\u05dc\u05d5\u05dd";
            text.width = 200;
            compare(text.effectiveHorizontalAlignment, Text.AlignRight);
            text.width = undefined;
        }

        Component {
            id: namedComponent

            KText {
                text: "Written"
                accessibleText: "Spoken"
            }
        }

        Component {
            id: boundComponent

            KText {
                property string source: "first"

                text: source
            }
        }

        Component {
            id: clickableComponent

            MouseArea {
                property int clicks: 0
                property int doubleClicks: 0

                width: 100
                height: 30
                onClicked: ++clicks
                onDoubleClicked: ++doubleClicks

                KText {
                    anchors.fill: parent
                    text: "Text on a button"
                }
            }
        }
    }
}
