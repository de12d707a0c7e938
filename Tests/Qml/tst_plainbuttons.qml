import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

ToolkitTestCase {
    name: "PlainButtons"

    function test_pressed_data() {
        return table(["tag", "properties", "byPointer", "byKey"], [
            ["KButton", { text: "Label" }, "clicked", "clicked"],
            ["DPillButton", { text: "Label" }, "clicked", "clicked"],
            ["DSvgButton", { text: "Label" }, "clicked", "clicked"],
            ["DSvgIconButton", { iconName: "plus-bold" }, "clicked", "clicked"],
            ["UTBadgeButton", { buttonText: "Label", badgeText: "3" }, "clicked", "clicked"],
            ["UTIndicatorButton", { indicatorType: UTIndicatorBadgeEnum.Error }, "clicked", "clicked"],
            ["UTToolButton", { iconName: "copy-bold" }, "clicked", "clicked"],
            ["WindowsButton", {}, "clicked", "clicked"],
            ["UTRectangleToggleButton", { buttonIcon: "pin-bold" }, "isCheckedChanged,toggled,clicked", "isCheckedChanged,toggled"]
        ]);
    }

    function test_pressed(row) {
        const button = make(row.tag, row.properties);
        verify(button.width >= 12 && button.height >= 12);
        const signals = ["clicked", "toggled", "isCheckedChanged"].filter(name => button[name]);
        compare(emitted(button, signals, () => mouseClick(button)), row.byPointer);
        button.forceActiveFocus(Qt.TabFocusReason);
        compare(emitted(button, signals, () => keyClick(Qt.Key_Return)), row.byKey);
    }

    function test_everyKindOfBadgeShows() {
        const button = make("UTIndicatorButton");
        for (let type = UTIndicatorBadgeEnum.Alert; type <= UTIndicatorBadgeEnum.MeetingSummary; ++type) {
            button.indicatorType = type;
            verify(button.contentItem.svgColorSet.isValid, type);
            tryCompare(button.contentItem, "status", Image.Ready, undefined, type);
        }
    }

    function test_badInput() {
        for (const type of [-1, 0, 27, 1000])
            verify(!make("UTIndicatorButton", { indicatorType: type }).visible, "nothing to see, nothing to focus");
        compare(make("WindowsButton", { buttonType: 9 }).tooltip, "");
    }

    function test_iconAndLabel() {
        compare(make("DSvgIconButton", { width: 116, iconName: "plus-bold" }).contentItem.children[0].x, 44, "alone in the middle");
        const button = make("DSvgIconButton", { width: 116, text: "Add", iconName: "plus-bold" });
        const label = button.contentItem;
        // Icon, gap and text are in the middle as one.
        const start = (label.width - 18 - label.contentWidth) / 2;
        for (const mirrored of [false, true]) {
            button.LayoutMirroring.enabled = mirrored;
            compareProperties(label, { leftPadding: mirrored ? 0 : 18, rightPadding: mirrored ? 18 : 0 });
            fuzzyCompare(label.children[0].x, mirrored ? label.width - start - 12 : start, 1);
        }
        for (const type of ["DSvgButton", "DSvgIconButton", "UTBadgeButton"])
            verify(make(type, { text: "Add", iconHeight: 60 }).height >= 60, "taller than its label");
    }

    function test_badge() {
        const button = make("UTBadgeButton", { width: 120, iconName: "chat-bold", buttonText: "Go", badgeText: "3" });
        const label = button.contentItem;
        const [icon, badge] = Array.from(label.children);
        for (const mirrored of [false, true]) {
            button.LayoutMirroring.childrenInherit = button.LayoutMirroring.enabled = mirrored;
            const [first, last] = mirrored ? [badge, icon] : [icon, badge];
            fuzzyCompare(last.x - first.x, first.width + 6 + label.contentWidth + 6, 1);
            compare(mirrored ? icon.x + icon.width : icon.x, mirrored ? label.width : 0, "as the text is aligned");
        }
        const room = button.implicitWidth;
        button.badgeVisible = false;
        compareProperties(button, { implicitWidth: room - badge.width - 6, "Accessible.description": "" });
        button.badgeVisible = true;
        button.buttonText = "";
        compare(button.implicitWidth, 24 + 14 + 6 + badge.width, "icon and badge alone");
    }

    function test_tooltipOfElidedLabel() {
        const button = make("KButton", { text: "A label that is too long", tooltip: "Tip", width: 60 });
        tryCompare(button, "isTextEilded", true);
        compare(Script.tooltipText(button), "A label that is too long\nTip");
        button.width = 400;
        tryCompare(button, "isTextEilded", undefined);
        compare(Script.tooltipText(make("DSvgButton", { text: "Share" })), "Share");
    }

    function test_toggleKeepsItsBinding() {
        const model = createTemporaryQmlObject("import QtQml; QtObject { property bool pinned }", parent);
        const button = make("UTRectangleToggleButton", { isChecked: Qt.binding(() => model.pinned) });
        mouseClick(button);
        verify(button.isChecked);
        model.pinned = true;
        model.pinned = false;
        verify(!button.isChecked);
    }

    function test_toolButtonOutline() {
        const button = make("UTToolButton", { iconName: "copy-bold", isDesignatedParent: true });
        App.isKeyboardFocus = true;
        button.forceActiveFocus(Qt.TabFocusReason);
        const ring = button.parts.focusRing;
        compareProperties(ring, { designatedParent: button, cornerRadius: 4, isRectangle: true });
        button.focusOutline.cornerRadius = 14;
        button.isDesignatedParent = false;
        compareProperties(ring, { designatedParent: undefined, cornerRadius: 14 });
    }

    function test_pressedLook() {
        const button = make("KButton", { text: "Label", isPressed: true });
        for (const [isEnabled, state] of [[true, "pressed"], [false, "disabled"]]) {
            button.enabled = isEnabled;
            compare(button.background.color, App.getColorSet("button-primary")[state]);
        }
    }

    function test_edgesInHighContrast() {
        const buttons = ["KButton", "UTBadgeButton", "UTToolButton", "UTRectangleToggleButton", "WindowsButton"]
            .map(type => make(type, { checkable: true, checked: true }));
        const hasEdge = button => button.background.border.width > 0 && button.background.border.color.a > 0;
        ThemeManager.theme = "highContrast";
        verify(buttons.every(hasEdge));
        for (const button of buttons) {
            button.enabled = false;
            compare(hasEdge(button), button.background.color.a > 0, button);
        }
        ThemeManager.theme = "light";
        verify(!buttons.some(hasEdge));
    }
}
