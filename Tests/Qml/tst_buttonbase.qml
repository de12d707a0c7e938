import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

ToolkitTestCase {
    id: testCase

    name: "ButtonBase"

    function makeButton(properties: var): var {
        const button = make("UTPillButton", Object.assign({ text: "Label" }, properties));
        button.forceActiveFocus(Qt.TabFocusReason);
        return button;
    }

    function presses(button: var, act: var): string {
        return emitted(button, ["clicked", "toggled"], act);
    }

    function test_keyboard_data() {
        return table(["tag", "properties", "signals", "checked"], [
            ["plain", {}, "clicked", false],
            ["checkable", { checkable: true }, "toggled", true],
            ["checked", { checkable: true, checked: true }, "toggled", false],
            ["exclusive", { checkable: true, isInExclusiveGroup: true }, "clicked,toggled", true],
            ["exclusive and checked", { checkable: true, isInExclusiveGroup: true, checked: true }, "", true],
            ["disabled", { enabled: false }, "", false]
        ]);
    }

    function test_keyboard(row) {
        for (const key of [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter]) {
            const button = makeButton(row.properties);
            compare(presses(button, () => keyPress(key)), "", "acts on release only");
            compare(presses(button, () => keyRelease(key)), row.signals);
            compare(button.checked, row.checked);
        }
    }

    function test_keyThatWentDownElsewhere() {
        const button = makeButton();
        compare(presses(button, () => keyRelease(Qt.Key_Space)), "");
        keyPress(Qt.Key_Space);
        testCase.forceActiveFocus();
        button.forceActiveFocus();
        compare(presses(button, () => keyRelease(Qt.Key_Space)), "", "the focus was away meanwhile");
        compare(presses(button, () => keyClick(Qt.Key_A)), "");
    }

    function test_mouseClicksOnce() {
        const button = makeButton({ checkable: true });
        compare(presses(button, () => mouseClick(button)), "toggled,clicked");
        verify(button.checked);
    }

    function test_announcements() {
        const button = makeButton({ checkable: true, announceStateChange: true });
        keyClick(Qt.Key_Space);
        button.accessibleText = "Three unread";
        button.checked = false;
        testCase.forceActiveFocus();
        button.accessibleText = "Four unread";
        button.checked = true;
        compare(heard(), ["Checked", "Three unread", "Unchecked"]);
    }

    function test_tooltipText() {
        for (const [isTextEilded, tooltip, shown] of [
            [undefined, "Label", "Label"], [false, "Label", ""], [false, "Tip", "Tip"],
            [true, "", "Label"], [true, "Label", "Label"], [true, "Tip", "Label\nTip"]
        ])
            compare(Script.tooltipText({ text: "Label", tooltip, isTextEilded }), shown, `${isTextEilded}, ${tooltip}`);
    }

    function test_accessibleNameOfTheApplication() {
        for (const order of ["tooltip: me + '!'; Accessible.name: me", "Accessible.name: me; tooltip: me + '!'"]) {
            const named = createTemporaryQmlObject("import QtQuick; import UIToolkitQml 1.0; UTRoundButton { property string me: 'Me'; %1 }".arg(order), testCase);
            for (const name of ["Me", "You"]) {
                named.me = name;
                compare(named.Accessible.name, name, order);
            }
        }
    }

    function test_keysOfTheApplication() {
        const button = createTemporaryQmlObject("import QtQuick; import UIToolkitQml 1.0; UTPillButton { property string log;"
            + "onClicked: log += 'c'; Keys.onReturnPressed: log += 'r'; Keys.onPressed: log += 'p' }", parent);
        button.forceActiveFocus();
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Enter);
        compare(button.log, "rpc");
    }

    // Where the parts begin, with icons of 20 and a spacing of 6 in 168 pixels between the paddings.
    function test_pillContent() {
        for (const [properties, isMirrored, leftX, rightX] of [
            [{ alignment: Text.AlignLeft }, false, 0, 148],
            [{ alignment: Text.AlignLeft }, true, 148, 0],
            [{ alignment: Text.AlignLeft, isIconAlignText: true }, false, 0, undefined],
            [{ alignment: Text.AlignRight, isIconAlignText: true }, false, undefined, 148]
        ]) {
            const button = makeButton(Object.assign({ width: 200, leftIcon: "link-bold", rightIcon: "copy-bold" }, properties));
            button.LayoutMirroring.enabled = isMirrored;
            button.LayoutMirroring.childrenInherit = true;
            const label = button.contentItem;
            const { leftIcon, rightIcon } = button.parts;
            for (const [icon, x] of [[leftIcon, leftX], [rightIcon, rightX]])
                tryCompare(icon, "x", x ?? icon.x);
            if (properties.isIconAlignText)
                fuzzyCompare(rightIcon.x - leftIcon.x, 20 + 6 + label.contentWidth + 6, 1);
            compare([label.leftPadding, label.rightPadding], [26, 26]);
            button.rightIcon = "";
            verify(!rightIcon.visible);
            compare(isMirrored ? label.leftPadding : label.rightPadding, 0);
            button.rightIcon = "link-bold";
            compare(button.parts.rightIcon, rightIcon);
        }
    }

    function test_pillElidesOnlyWhenAligned() {
        const button = make("UTPillButton", { text: "A label that is far too long", width: 80 });
        for (const alignment of [undefined, Text.AlignLeft, undefined]) {
            button.alignment = alignment;
            tryCompare(button, "isTruncated", alignment !== undefined);
            compare(Script.tooltipText(button), alignment === undefined ? "" : button.text);
        }
    }
}
