import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

ToolkitTestCase {
    name: "CallControls"

    readonly property var split: ({ buttonType: UTCallControlButtonEnum.DualIcon, leftIcon: "microphone-bold", leftName: "Mute",
        rightIcon: "video-bold", rightName: "Stop video" })

    function emittedBy(button: var, act: var): string {
        return emitted(button, ["leftClicked", "leftToggled", "rightClicked", "rightToggled"].filter(name => button[name]), act);
    }

    function test_halves_data() {
        return table(["tag", "properties", "side", "signal", "checkedAfter"], [
            ["left", {}, "left", "leftClicked", [false, false]],
            ["right", {}, "right", "rightClicked", [false, false]],
            ["left toggles", { leftCheckable: true }, "left", "leftToggled", [true, false]],
            ["right toggles", { rightCheckable: true }, "right", "rightToggled", [true, false]],
            // Shows what it was given, whatever Qt makes of a checked button.
            ["left shows", { leftChecked: true }, "left", "leftClicked", [true, true]],
            ["right shows", { rightChecked: true }, "right", "rightClicked", [true, true]]
        ]);
    }

    function test_halves(row) {
        const button = make("UTCallControlButton", Object.assign({}, split, row.properties));
        const half = button[row.side + "Button"];
        for (const [i, act] of [() => mouseClick(half), () => keyClick(Qt.Key_Space), () => half.accessiblePressAction()].entries()) {
            half.forceActiveFocus();
            compare(emittedBy(button, act), row.signal);
            compare([button[row.side + "Checked"], half.checked], Array(2).fill(row.checkedAfter[i % 2]), `after ${i + 1}`);
        }
        button[row.side + "Enabled"] = false;
        compare(emittedBy(button, () => mouseClick(half)), "");
    }

    function test_names() {
        const button = make("UTCallControlButton", split);
        compareProperties(button.Accessible, { role: Accessible.Grouping, name: "Mute" });
        // Tool tips of the halves, then text and description of the left one, after one change and another.
        for (const [changes, expected] of [
            [{}, ["Mute", "Stop video", "Mute", ""]],
            [{ badgeText: "3" }, ["Mute", "Stop video", "Mute", "3"]],
            [{ leftAccessibleName: "Mute me" }, ["Mute", "Stop video", "Mute me", "3"]],
            [{ leftTooltip: "Unmute" }, ["Unmute", "Stop video", "Mute me", "3"]],
            [{ leftAccessibleDescription: "Three are waiting" }, ["Unmute", "Stop video", "Mute me", "Three are waiting"]],
            [{ leftAccessibleDescription: "" }, ["Unmute", "Stop video", "Mute me", "3"]]
        ]) {
            Object.assign(button, changes);
            const { leftButton: left, rightButton: right } = button;
            compare([Script.tooltipText(left), Script.tooltipText(right), left.text, left.Accessible.description], expected);
        }
    }

    function test_announcements() {
        const button = make("UTCallControlButton",
            Object.assign({ leftCheckable: true, rightCheckable: true, leftAnnouncesState: true, rightAnnouncesState: true }, split));
        button.leftChecked = true;
        compare(heard(), [], "without the focus");
        for (const half of [button.leftButton, button.rightButton]) {
            half.forceActiveFocus();
            keyClick(Qt.Key_Space);
        }
        button.rightStatusText = "Video stopped";
        button.leftStatusText = "Muted";
        compare(heard(), ["Unchecked", "Checked", "Video stopped"]);
    }

    function test_geometry() {
        const button = make("UTCallControlButton", split);
        compareProperties(button, { width: 84, height: 40, "leftButton.x": 0, "rightButton.x": 42, "rightButton.width": 42 });
        button.LayoutMirroring.enabled = true;
        button.LayoutMirroring.childrenInherit = true;
        compareProperties(button, { "leftButton.x": 42, "rightButton.x": 0 });
        button.width = 100; // the left half takes the rest
        compareProperties(button, { "leftButton.width": 58, "rightButton.width": 42 });

        verify(make("UTCallControlButton", { buttonType: UTCallControlButtonEnum.ClosedCaptions, leftIcon: "captions-bold" }).rightButton.visible);
        button.buttonType = UTCallControlButtonEnum.Round;
        compareProperties(button, { implicitWidth: 40, "leftButton.width": 100, "rightButton.visible": false });
        button.buttonType = UTCallControlButtonEnum.Panel;
        compare(button.implicitWidth, 40, "round without a label");
        button.UTCallControlButtonData.buttonType = UTCallControlButtonEnum.KorvuAssistant;
        compare(button.UTCallControlButtonData.leftIconSize.width, 20, "waits for the size");
        button.UTCallControlButtonData.buttonType = UTCallControlButtonEnum.Panel;
        button.text = "People";
        verify(button.implicitWidth > 16 + 20 + 6 + 16);
        button.width = 200;
        compare(Script.tooltipText(button.leftButton), "", "the label is to be seen");
        button.width = 60;
        tryCompare(button.leftButton, "isTextEilded", true);
        button.showText = false;
        compareProperties(button, { implicitWidth: 40, "leftButton.text": "People", "leftButton.isTextEilded": true });
    }

    function test_unknownNumbers() {
        for (const number of [-1, 99]) {
            const button = make("UTCallControlButton", Object.assign({}, split, { buttonType: number, buttonStyle: number, buttonSize: number, buttonState: number }));
            compare(emittedBy(button, () => mouseClick(button.leftButton)), "leftClicked");
            compare(make("UTCallControlButtonWrapper", { action: number }).leftName, "");
            verify(make("UTDualButton", { buttonStyle: number, text: "a" }).width > 0);
        }
    }

    function test_noRightHalfOfNoWidth() {
        const large = UTCallControlButtonEnum.KorvuAssistantLarge;
        verify(!make("UTCallControlButton", { buttonType: large }).rightButton);
        const button = make("UTCallControlButton", split);
        button.buttonType = large;
        verify(!button.rightButton.visible, "nothing for the Tab key");
        compare(button.width, 64);
    }

    function test_wrapperFollowsTheCall() {
        const button = make("UTCallControlButtonWrapper", { action: UTCallControlButtonWrapper.Action.Mute, hasMenu: true });
        const signals = ["triggered", "menuRequested"];
        button.leftButton.forceActiveFocus();
        for (const act of [() => mouseClick(button.leftButton), () => keyClick(Qt.Key_Space)]) {
            compare(emitted(button, signals, act), "triggered");
            compareProperties(button, { leftChecked: false, "leftButton.checked": false });
        }
        compare(heard(), []);
        button.isOn = true;
        compareProperties(button, { "leftButton.checked": true, "leftButton.tooltip": "Unmute", "leftButton.text": "Mute" });
        compare(heard(), ["Muted"]);
        compare(emitted(button, signals, () => mouseClick(button.rightButton)), "menuRequested");
        compare(button.rightButton.checked, false);
        button.isMenuOpen = true;
        compare(button.rightButton.checked, true);
        button.count = 120;
        compareProperties(button, { badgeText: "99+", leftAccessibleDescription: "120 new" });
        button.action = UTCallControlButtonWrapper.Action.Leave;
        compareProperties(button, { leftChecked: false, "leftButton.checked": false, buttonStyle: UTCallControlButtonEnum.Cancel });
    }

    function test_toggleButton() {
        const button = make("UTToggleButton");
        const { leftButton: left, rightButton: right } = button;
        for (const [half, expected] of [[left, [true, false]], [right, [true, true]], [left, [false, true]]]) {
            mouseClick(half);
            compare([left.checked, right.checked], expected);
        }
        button.isExclusive = true;
        for (const half of [left, left, right, right]) {
            half.forceActiveFocus();
            for (const act of [() => keyClick(Qt.Key_Space), () => mouseClick(half)]) {
                act();
                compare([left.checked, right.checked], [half === left, half === right]);
            }
        }
    }

    function test_dualButton() {
        const button = make("UTDualButton", { text: "100 %", leftIconName: "minus-bold", rightIconName: "plus-bold", isLeftChecked: true });
        for (const side of ["left", "right"])
            compare(emittedBy(button, () => mouseClick(button[side + "Button"])), side + "Clicked");
        compare(button.leftButton.checked, true);
        button.isLeftChecked = false;
        compare(button.leftButton.checked, false);

        const width = button.width;
        button.text = "1000 %";
        verify(button.width > width);
        button.enableResize = false;
        const fixed = button.width;
        button.text = "a text that is far too long";
        compare(button.width, fixed);
        tryVerify(() => button.leftButton.isTextEilded);
        button.isTextInRight = true;
        compareProperties(button, { width: fixed, "leftButton.text": "", "rightButton.text": "a text that is far too long" });
    }

    function test_dualIconButton() {
        const button = make("UTDualIconButton", { leftIconName: "minus-bold", rightIconName: "plus-bold", horizontal: false });
        compareProperties(button, { width: 32, height: 65, "leftButton.y": 0, "rightButton.y": 33 });
        button.horizontal = true;
        compareProperties(button, { height: 32, "rightButton.y": 0 });
        compare(emittedBy(button, () => mouseClick(button.rightButton)), "rightClicked");
    }
}
