import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

ToolkitTestCase {
    id: testCase

    name: "Buttons"

    function test_roundButton() {
        const button = make("UTRoundButton");
        const color = name => App.getColorSet(name).normal;
        // What its icon is drawn from, after one change and another.
        for (const [changes, source] of [
            [{}, ""],
            [{ buttonIcon: "arrow-right-bold" }, `${color("button-primary-text")}/arrow-right-bold`],
            [{ iconColorSetName: "text-secondary" }, `${color("text-secondary")}/arrow-right-bold`],
            [{ iconColorSetName: "", buttonStyle: UTButtonStyle.Customized, iconColorCustomized: "#ff8000" }, "#ff8000/arrow-right-bold"],
            [{ buttonSize: UTButtonSize.None }, ""]
        ]) {
            Object.assign(button, changes);
            tryCompare(button.contentItem, "source", Qt.url(source && "image://svg/" + source));
            compareProperties(button, { width: 64, height: 64 });
        }
        for (const isAllowed of [true, false]) {
            button.LayoutMirroring.enabled = true;
            button.mirrorEnabled = isAllowed;
            compare(button.contentItem.mirror, isAllowed);
        }
    }

    function test_derived_data() {
        return table(["tag", "properties", "ring"], [
            ["UTRoundButton", { customFocusRect: Qt.rect(1, 2, 30, 40) }, { isRectangle: false, customRect: Qt.rect(1, 2, 30, 40) }],
            ["UTMultilinePillButton", { innerFocusBorder: true }, { isRectangle: false, innerFocusBorder: true }],
            ["UTIconButton", {}, { isRectangle: false }],
            ["UTRectangleButton", {}, { cornerRadius: 4 }],
            ["UTTextButton", {}, { cornerRadius: 4, designatedParent: undefined }],
            ["UTBlockButton", {}, { cornerRadius: 8 }],
            ["UTChip", {}, { isRectangle: true, cornerRadius: 8 }]
        ]);
    }

    // A warning would fail it: the data object of a derived type must still be that of the component.
    function test_derived(row) {
        const source = "import UIToolkitQml 1.0; %1 { property int extra; text: 'Text'; width: 120; themeType: 'dark'; onClicked: extra += 1 }".arg(row.tag);
        const button = Object.assign(createTemporaryQmlObject(source, testCase), row.properties);
        tryVerify(() => button.implicitHeight > 0);
        mouseClick(button, 20, button.height / 2);
        compare(button.extra, 1);

        App.isKeyboardFocus = true;
        button.forceActiveFocus(Qt.TabFocusReason);
        const ring = button.parts.focusRing;
        compareProperties(ring, Object.assign({ visible: true, themeType: "dark" }, row.ring));
        button.themeType = "global";
        compare(ring.themeType, "global");

        ThemeManager.theme = "highContrast";
        button.enabled = false;
        App.textScale = 1.5;
        tryVerify(() => button.implicitHeight > 0);
    }

    function test_iconButtonToggles() {
        const button = make("UTIconButton", { buttonType: UTButtonType.Favorite });
        const icon = button.contentItem;
        tryVerify(() => icon.source.toString().endsWith("/favorite-bold"));
        mouseClick(button);
        tryVerify(() => icon.source.toString().endsWith("/favorite-filled"));
        button.buttonType = 99;
        verify(icon.source.toString().endsWith("/favorite-filled"));
    }

    function test_rectangleButtonGrowsOrElides() {
        const button = make("UTRectangleButton", { text: "A label of several words", width: 90 });
        tryVerify(() => button.implicitHeight > 28);
        verify(button.isTextEilded === false);
        button.singleLine = true;
        compare(button.implicitHeight, 28);
        tryVerify(() => button.isTextEilded);

        const wide = make("UTRectangleButton", { text: "Go", width: 200, iconName: "link-bold" });
        const start = Math.round((180 - 22 - wide.contentItem.contentWidth) / 2);
        for (const mirrored of [false, true]) {
            wide.LayoutMirroring.enabled = mirrored;
            tryCompare(wide.parts.icon, "x", mirrored ? 180 - 16 - start : start);
        }
        wide.iconName = "";
        compareProperties(wide.contentItem, { leftPadding: 0, rightPadding: 0 });
    }

    function test_multilinePill() {
        const pill = make("UTMultilinePillButton", {
            text: "Reception", width: 200, rightIcon: "link-bold", buttonStyle: UTButtonStyle.Secondary,
            shouldDisplayLineDesignator: true, lineDesignatorText: "2"
        });
        const { designator, icon } = pill.parts;
        compareProperties(designator, { width: designator.height, opacity: 1, "border.width": 1 });
        const [before, after] = [designator.width + 6, 20 + 6];
        for (const mirrored of [false, true]) {
            pill.LayoutMirroring.enabled = mirrored;
            compare([designator.x, icon.x], mirrored ? [168 - designator.width, 0] : [0, 148]);
            compareProperties(pill.contentItem, { leftPadding: mirrored ? after : before, rightPadding: mirrored ? before : after });
        }
        compare(pill.Accessible.description, "2");
        pill.lineDesignatorText = "Home";
        tryVerify(() => designator.width > designator.height);

        pill.enabled = false;
        compare(designator.opacity, 0.3);
        Object.assign(pill, { shouldUseSingleTextColor: true, shouldDisplayLineDesignator: false, rightIcon: "", showBorder: false });
        compareProperties(pill.contentItem, { color: App.getColorSet("text-primary").normal, leftPadding: 0, rightPadding: 0 });
        compare(pill.background.border.width, 0);
    }

    function test_textButton() {
        const button = make("UTTextButton", { text: "Learn more", colorStyle: UTTextButtonEnum.Share, enabled: false, width: 40 });
        compare(button.textColor, App.getColorSet("sharewindow-control-text-primary").disabled);
        tryVerify(() => button.isTextEilded);
        button.textElide = Text.ElideNone;
        tryVerify(() => !button.isTextEilded);
        for (const changes of [true, false]) {
            button.changeCursor = changes;
            compare(button.parts.cursor.enabled, changes);
        }
    }

    function test_clickTip() {
        const button = make("UTTextButton", { text: "What is this?", tooltipContent: "A link" });
        mouseClick(button);
        verify(!button.parts.clickTip);
        button.enableClickTooltip = true;
        mouseClick(button);
        const tip = button.parts.clickTip;
        compareProperties(tip, { isOpen: true, maximumWidth: 216, tooltipText: "A link" });
        tryVerify(() => tip.tooltipWindow && tip.tooltipWindow.visible);
        mouseClick(button);
        verify(!tip.isOpen);
        tryVerify(() => !tip.tooltipWindow.visible);
        mouseClick(button);
        button.forceActiveFocus();
        keyClick(Qt.Key_Escape);
        verify(!tip.isOpen);
        button.tooltipMaxWidth = 100;
        mouseClick(button);
        compareProperties(tip, { isOpen: true, maximumWidth: 100 });
        mouseMove(testCase, 390, 290);
        testCase.forceActiveFocus();
        tryVerify(() => !tip.isOpen);
    }

    function test_blockButton() {
        const button = make("UTBlockButton", { text: "<b>Title</b><br>a &lt;b&gt;", tooltip: "Tip", width: 200 });
        compare(button.Accessible.name, "Title, a <b>");
        for (const theme of themes) {
            ThemeManager.theme = theme;
            const title = button.contentItem.text.split("<br>")[0];
            verify(title.includes(App.getColorSet("hyperlink-accent-text", theme).normal.toString().slice(1)), title);
        }
        const height = button.implicitHeight;
        button.text = "word ".repeat(1000);
        tryVerify(() => button.contentItem.truncated && button.implicitHeight > height);
        button.text = "";
        compare(button.Accessible.name, "Tip");
    }

    function test_chip() {
        const chip = make("UTChip", { text: "Design", param: { id: 7 }, leftIcon: "people-bold" });
        const closed = spyOn(chip, "closeClicked");
        const closeIcon = chip.contentItem.children[0];
        compareProperties(chip, { height: 24, checkable: false });
        verify(!chip.parts || !chip.parts.leftIcon, "made when shown");
        chip.showLeftIcon = true;
        verify(chip.parts.leftIcon.visible);
        mousePress(closeIcon);
        compare(closed.count, 1, "on press");
        mouseRelease(closeIcon);
        chip.forceActiveFocus();
        for (const key of [Qt.Key_Delete, Qt.Key_Backspace, Qt.Key_A])
            keyClick(key);
        compare(closed.signalArguments.map(args => args[0].id), [7, 7, 7]);
        compare(closeIcon.children[0].Accessible.name, "Remove Design");

        chip.LayoutMirroring.enabled = true;
        compare(closeIcon.x, 0);
        chip.width = 60;
        tryVerify(() => chip.isTextEilded);
        chip.enabled = false;
        mouseClick(closeIcon);
        compare(closed.count, 3);
    }
}
