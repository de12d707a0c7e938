import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

Item {
    id: stage

    width: 400
    height: 200

    ToolkitTestCase {
        id: testCase

        name: "ButtonBase"
        parent: stage

        SignalSpy { id: clicked; signalName: "clicked" }
        SignalSpy { id: toggled; signalName: "toggled" }
        SignalSpy { id: announced; target: UIToolKitUtils; signalName: "announced" }

        function makeButton(properties: var): var {
            const button = make("UTPillButton", Object.assign({ text: "Label" }, properties));
            for (const spy of [clicked, toggled]) {
                spy.target = button;
                spy.clear();
            }
            button.forceActiveFocus(Qt.TabFocusReason);
            verify(button.activeFocus);
            announced.clear();
            return button;
        }

        function test_keyboard_data() {
            return table(["tag", "properties", "clicks", "toggles", "checked"], [
                ["plain", {}, 1, 0, false],
                ["checkable", { checkable: true }, 0, 1, true],
                ["checked", { checkable: true, checked: true }, 0, 1, false],
                ["exclusive", { checkable: true, isInExclusiveGroup: true }, 1, 1, true],
                ["exclusive and checked", { checkable: true, isInExclusiveGroup: true, checked: true }, 0, 0, true],
                ["disabled", { enabled: false }, 0, 0, false]
            ]);
        }
        function test_keyboard(row) {
            for (const key of [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter]) {
                const button = row.properties.enabled === false ? make("UTPillButton", row.properties) : makeButton(row.properties);
                keyPress(key);
                compare(clicked.count + toggled.count, 0, "acts on release only");
                keyRelease(key);
                compare(clicked.count, row.clicks);
                compare(toggled.count, row.toggles);
                compare(button.checked, row.checked);
            }
        }
        function test_keyThatWentDownElsewhere() {
            makeButton();
            keyRelease(Qt.Key_Space);
            compare(clicked.count, 0);
            keyPress(Qt.Key_Space);
            stage.forceActiveFocus();
            clicked.target.forceActiveFocus();
            keyRelease(Qt.Key_Space);
            compare(clicked.count, 0, "the focus was away meanwhile");
            keyClick(Qt.Key_A);
            compare(clicked.count, 0);
        }
        function test_mouseClicksOnce() {
            const button = makeButton({ checkable: true });
            mouseClick(button);
            compare(clicked.count, 1);
            verify(button.checked);
        }
        function test_announcements() {
            const button = makeButton({ checkable: true, announceStateChange: true });
            keyClick(Qt.Key_Space);
            tryCompare(announced, "count", 1);
            compare(announced.signalArguments[0][0], "Checked");
            button.accessibleText = "Three unread";
            button.checked = false;
            tryCompare(announced, "count", 3);
            compare(announced.signalArguments.slice(1).map(args => args[0]), ["Three unread", "Unchecked"]);
            stage.forceActiveFocus();
            button.accessibleText = "Four unread";
            button.checked = true;
            button.announceStateChange = false;
            compare(announced.count, 3);
        }
        function test_tooltipText_data() {
            return table(["tag", "isTextEilded", "tooltip", "shown"], [
                ["undefined", undefined, "Label", "Label"],
                ["same as the text", false, "Label", ""],
                ["other than the text", false, "Tip", "Tip"],
                ["elided", true, "", "Label"],
                ["elided, same", true, "Label", "Label"],
                ["elided, other", true, "Tip", "Label\nTip"]
            ]);
        }
        function test_tooltipText(row) {
            const button = { text: "Label", tooltip: row.tooltip, isTextEilded: row.isTextEilded };
            compare(Script.tooltipText(button), row.shown);
        }
        function test_accessibleName() {
            const button = make("UTPillButton", { tooltip: "Tip" });
            compare(button.Accessible.name, "Tip");
            button.text = "Label";
            compare(button.Accessible.name, "Label");
            for (const order of ["tooltip: me + '!'; Accessible.name: me", "Accessible.name: me; tooltip: me + '!'"]) {
                const named = createTemporaryQmlObject("import QtQuick; import UIToolkitQml 1.0; UTRoundButton { property string me: 'Me'; %1 }".arg(order), stage);
                compare(named.Accessible.name, "Me");
                named.me = "You";
                compare(named.Accessible.name, "You", "the application knows better");
            }
        }
        function test_pressByAssistiveTechnology() {
            makeButton({ checkable: true, isInExclusiveGroup: true, checked: true });
            clicked.target.accessiblePressAction();
            compare(clicked.count + toggled.count, 0);
        }

        function test_pillContent_data() {
            // Where the parts begin, with icons of 20 and a spacing of 6 in 168 pixels between the paddings.
            return table(["tag", "properties", "left", "right", "mirrored"], [
                ["apart", { alignment: Text.AlignLeft }, 0, 148, false],
                ["together on the left", { alignment: Text.AlignLeft, isIconAlignText: true }, 0, undefined, false],
                ["together on the right", { alignment: Text.AlignRight, isIconAlignText: true }, undefined, 148, false],
                ["mirrored", { alignment: Text.AlignLeft }, 148, 0, true]
            ]);
        }
        function test_pillContent(row) {
            const button = makeButton(Object.assign({ width: 200, leftIcon: "link-bold", rightIcon: "copy-bold" }, row.properties));
            button.LayoutMirroring.enabled = row.mirrored;
            button.LayoutMirroring.childrenInherit = true;
            const label = button.contentItem;
            const [left, right] = [button.parts.leftIcon, button.parts.rightIcon];
            if (row.left !== undefined)
                tryCompare(left, "x", row.left);
            if (row.right !== undefined)
                tryCompare(right, "x", row.right);
            if (row.properties.isIconAlignText)
                fuzzyCompare(right.x - left.x, 20 + 6 + label.contentWidth + 6, 1);
            compare([label.leftPadding, label.rightPadding], [26, 26]);
            button.rightIcon = "";
            verify(!right.visible);
            compare(row.mirrored ? label.leftPadding : label.rightPadding, 0);
            button.rightIcon = "link-bold";
            compare(button.parts.rightIcon, right);
        }
        function test_pillElidesOnlyWhenAligned() {
            const button = make("UTPillButton", { text: "A label that is far too long", width: 80 });
            verify(!button.isTruncated);
            button.alignment = Text.AlignLeft;
            tryVerify(() => button.isTruncated);
            compare(Script.tooltipText(button), button.text);
            button.alignment = undefined;
            tryVerify(() => !button.isTruncated);
        }
    }
}
