import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 400
    height: 200

    TextInput {
        id: input

        y: 100
        width: 100
    }

    MouseArea {
        id: clickable

        property int doubleClicks: 0

        y: 150
        width: 100
        height: 30
        onDoubleClicked: ++doubleClicks
    }

    ToolkitTestCase {
        name: "KText"

        readonly property string emojis: "Hi \u{1F600} there"

        function test_defaults() {
            const text = make("KText");
            compareProperties(text, { font: FontConstants.bodySecondary, leftPadding: 12, rightPadding: 12, topPadding: 0, empty: true });
            compareProperties(text, { textWithEmojis: "", refocusOnTextChange: false, isParentGotVisualFocus: false });
            text.text = "Written";
            compareProperties(text, { empty: false, accessibleText: "Written", toolTipText: "Written", "Accessible.role": Accessible.StaticText, "Accessible.name": "Written" });
            text.accessibleText = "Spoken";
            compare(text.Accessible.name, "Spoken");
        }

        function test_emojis_data() {
            return table(["tag", "format", "hasImages"], [["plain", Text.AutoText, false], ["rich", Text.RichText, true]]);
        }

        function test_emojis(data) {
            const text = make("KText", { textFormat: data.format, font: FontConstants.bannerPrimary });
            const expected = data.hasImages ? Utils.replaceEWJEmojisByImages(emojis, FontConstants.lineHeight(text.font)) : emojis;
            compare(expected.includes("<img"), data.hasImages);
            text.textWithEmojis = emojis;
            compareProperties(text, { text: expected, textWithEWJEmojis: emojis });
            text.text = "";
            text.setTextWithEmojis(emojis);
            compare(text.text, expected);
            // On a busy machine Qt 6.8 may warn of a picture that came too soon, if the text were still there to show it.
            text.text = "";
        }

        function test_writingEmojisBreaksTheBinding() {
            const text = make("KText", { text: Qt.binding(() => input.text) });
            input.text = "first";
            compare(text.text, "first");
            text.textWithEmojis = "emojis";
            input.text = "second";
            compare(text.text, "emojis");
        }

        function test_refocus() {
            const text = make("KText");
            const spy = createTemporaryObject(spyComponent, root, { target: text, signalName: "activeFocusChanged" });
            input.forceActiveFocus();
            text.text = "Unheard";
            verify(input.activeFocus);

            const children = text.children.length;
            text.refocusOnTextChange = true;
            text.text = "Heard";
            verify(text.activeFocus);
            text.text = "Heard again";
            verify(text.activeFocus);
            // On the first change the focus arrives, on the second it leaves and comes back.
            compare(spy.count, 3);
            tryCompare(text.children, "length", children);
        }

        function test_mouseArea() {
            const text = make("KText", { text: "Text on a button" }, clickable);
            compareProperties(text.textMouseArea, { acceptedButtons: Qt.NoButton, propagateComposedEvents: true, width: text.width, height: text.height });
            mouseMove(text, 5, 5);
            tryVerify(() => text.textMouseArea.containsMouse);
            mouseMove(root, 390, 190);
            tryVerify(() => !text.textMouseArea.containsMouse);
            mouseDoubleClickSequence(text, 20, 5);
            compare(clickable.doubleClicks, 1, "clicks pass through the text");
        }

        Component {
            id: spyComponent

            SignalSpy {}
        }
    }
}
