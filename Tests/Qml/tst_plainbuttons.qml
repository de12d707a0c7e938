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
        name: "PlainButtons"
        parent: stage

        SignalSpy { id: clicked; signalName: "clicked" }

        function test_pressed_data() {
            return table(["tag", "properties", "toggles"], [
                ["KButton", { text: "Label" }],
                ["DPillButton", { text: "Label" }],
                ["DSvgButton", { text: "Label" }],
                ["DSvgIconButton", { iconName: "plus-bold", tooltip: "Label" }],
                ["UTBadgeButton", { buttonText: "Label", badgeText: "3" }],
                ["UTIndicatorButton", { indicatorType: UTIndicatorBadgeEnum.Error, tooltip: "Label" }],
                ["UTToolButton", { iconName: "copy-bold", tooltip: "Label" }],
                ["WindowsButton", { tooltip: "Label" }],
                ["UTRectangleToggleButton", { buttonIcon: "pin-bold", tooltip: "Label" }, true]
            ]);
        }
        function test_pressed(row) {
            const button = make(row.tag, row.properties);
            verify(button.width >= 12 && button.height >= 12);
            compare(button.Accessible.name || button.text, "Label");
            clicked.target = button;
            clicked.clear();
            mouseClick(button);
            compare(clicked.count, 1);
            button.forceActiveFocus(Qt.TabFocusReason);
            App.isKeyboardFocus = true;
            keyClick(Qt.Key_Return);
            if (row.toggles)
                verify(!button.isChecked, "on by the pointer, off by the key");
            else
                compare(clicked.count, 2);
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

        function test_iconAndLabel_data() {
            return table(["tag", "text", "mirrored", "x"], [
                ["alone in the middle", "", false, 44],
                ["before the label", "Add", false, undefined],
                ["mirrored", "Add", true, undefined]
            ]);
        }
        function test_iconAndLabel(row) {
            const button = make("DSvgIconButton", { width: 116, text: row.text, iconName: "plus-bold" });
            button.LayoutMirroring.enabled = row.mirrored;
            const icon = button.contentItem.children[0];
            const label = button.contentItem;
            tryCompare(icon, "visible", true);
            if (row.x !== undefined) {
                compare(icon.x, row.x);
                return;
            }
            const room = row.mirrored ? label.rightPadding : label.leftPadding;
            compare(room, 12 + 6);
            for (const type of ["DSvgButton", "DSvgIconButton", "UTBadgeButton"])
                verify(make(type, { text: row.text, iconHeight: 60 }).height >= 60, "taller than its label");
            // Icon, gap and text are in the middle as one.
            const start = (label.width - 18 - label.contentWidth) / 2;
            fuzzyCompare(icon.x, row.mirrored ? label.width - start - 12 : start, 1);
        }

        function test_badge() {
            const button = make("UTBadgeButton", { width: 120, iconName: "chat-bold", buttonText: "Go", badgeText: "3" });
            const [icon, badge] = [button.contentItem.children[0], button.contentItem.children[1]];
            const label = button.contentItem;
            for (const mirrored of [false, true]) {
                button.LayoutMirroring.childrenInherit = button.LayoutMirroring.enabled = mirrored;
                const [first, last] = mirrored ? [badge, icon] : [icon, badge];
                fuzzyCompare(last.x - first.x, first.width + 6 + label.contentWidth + 6, 1);
                compare(mirrored ? icon.x + icon.width : icon.x, mirrored ? label.width : 0, "as the text is aligned");
            }
            compare(button.Accessible.description, "3");
            const room = button.implicitWidth;
            button.badgeVisible = false;
            compare(button.implicitWidth, room - badge.width - 6);
            compare(button.Accessible.description, "");
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
            const model = createTemporaryQmlObject("import QtQml; QtObject { property bool pinned }", stage);
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
            const colorSet = App.getColorSet("button-primary");
            compare(button.background.color, colorSet.pressed);
            button.enabled = false;
            compare(button.background.color, colorSet.disabled);
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
}
