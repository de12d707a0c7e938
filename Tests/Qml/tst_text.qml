import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

ToolkitTestCase {
    id: testCase

    name: "KText"

    readonly property string emojis: "Hi \u{1F600} there"

    TextInput { id: input; y: 100; width: 100 }

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
        compareProperties(text, { text: expected, empty: false });
        // On a busy machine Qt 6.8 may warn of a picture that came too soon, if the text were still there to show it.
        text.text = "";
        verify(text.empty);
    }

    function test_writingEmojisBreaksTheBinding() {
        const text = make("KText", { text: Qt.binding(() => input.text) });
        input.text = "first";
        compareProperties(text, { text: "first", toolTipText: "first" });
        text.textWithEmojis = "emojis";
        input.text = "second";
        compare(text.text, "emojis");
    }

    function test_refocus() {
        const text = make("KText");
        const focus = spyOn(text, "activeFocusChanged");
        input.forceActiveFocus();
        text.text = "Unheard";
        verify(input.activeFocus);

        const children = text.children.length;
        text.refocusOnTextChange = true;
        for (const heard of ["Heard", "Heard again"]) {
            text.text = heard;
            verify(text.activeFocus);
        }
        // On the first change the focus arrives, on the second it leaves and comes back.
        compare(focus.count, 3);
        tryCompare(text.children, "length", children);
    }

    function test_mouseArea() {
        const clickable = createTemporaryQmlObject("import QtQuick; MouseArea { width: 100; height: 30 }", testCase);
        const text = make("KText", { text: "Text on a button" }, clickable);
        const area = text.textMouseArea;
        for (const [x, isOver] of [[5, true], [390, false]]) {
            mouseMove(testCase, x, 5);
            tryCompare(area, "containsMouse", isOver);
        }
        compare(emitted(clickable, ["pressedChanged"], () => mouseClick(text)), "pressedChanged,pressedChanged", "clicks pass through");
    }
}
