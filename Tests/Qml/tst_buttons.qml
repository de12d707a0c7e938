import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

Item {
    id: stage

    width: 400
    height: 300

    ToolkitTestCase {
        name: "Buttons"
        parent: stage

        SignalSpy { id: clicked; signalName: "clicked" }
        SignalSpy { id: closed; signalName: "closeClicked" }

        function cleanup() {
            ThemeManager.theme = "light";
            App.textScale = 1;
        }

        function test_roundButton() {
            const button = make("UTRoundButton", { tooltip: "Next" });
            compareProperties(button, { width: 64, height: 64, "contentItem.source": Qt.url(""), "Accessible.name": "Next" });
            button.buttonIcon = "arrow-right-bold";
            const set = name => App.getColorSet(name).normal;
            tryCompare(button.contentItem, "source", Qt.url("image://svg/%1/arrow-right-bold".arg(set("button-primary-text"))));
            button.iconColorSetName = "text-secondary";
            tryCompare(button.contentItem, "source", Qt.url("image://svg/%1/arrow-right-bold".arg(set("text-secondary"))));
            button.iconColorSetName = "";
            button.buttonStyle = UTButtonStyle.Customized;
            button.iconColorCustomized = "#ff8000";
            tryCompare(button.contentItem, "source", Qt.url("image://svg/#ff8000/arrow-right-bold"));
            button.buttonSize = UTButtonSize.None;
            compareProperties(button, { width: 64, "contentItem.source": Qt.url("") });

            button.LayoutMirroring.enabled = true;
            verify(!button.contentItem.mirror);
            button.mirrorEnabled = true;
            verify(button.contentItem.mirror);
        }

        function test_derivedButtonsKeepTheirData_data() {
            return ["UTRoundButton", "UTMultilinePillButton", "UTIconButton", "UTRectangleButton", "UTTextButton", "UTBlockButton", "UTChip"]
                .map(tag => ({ tag }));
        }
        // A warning would fail it: the data object of a derived type must still be that of the component.
        function test_derivedButtonsKeepTheirData(row) {
            const source = "import UIToolkitQml 1.0; %1 { property int extra; text: \"Text\"; width: 120; onClicked: extra = 1 }".arg(row.tag);
            const button = createTemporaryQmlObject(source, stage);
            tryVerify(() => button.implicitHeight > 0);
            clicked.target = button;
            clicked.clear();
            mouseClick(button, 20, button.height / 2);
            compare(clicked.count, 1);
            ThemeManager.theme = "highContrast";
            button.enabled = false;
            App.textScale = 1.5;
            tryVerify(() => button.implicitHeight > 0);
        }

        function test_focusRings_data() {
            return table(["tag", "properties", "ring"], [
                ["UTRoundButton", { customFocusRect: Qt.rect(1, 2, 30, 40) }, { isRectangle: false, customRect: Qt.rect(1, 2, 30, 40) }],
                ["UTMultilinePillButton", { innerFocusBorder: true }, { isRectangle: false, innerFocusBorder: true }],
                ["UTIconButton", {}, { isRectangle: false }], ["UTRectangleButton", {}, { cornerRadius: 4 }],
                ["UTTextButton", {}, { cornerRadius: 4, designatedParent: undefined }], ["UTBlockButton", {}, { cornerRadius: 8 }],
                ["UTChip", {}, { isRectangle: true, cornerRadius: 8 }]
            ]);
        }
        function test_focusRings(row) {
            const button = make(row.tag, Object.assign({ text: "Text", themeType: "dark" }, row.properties));
            App.isKeyboardFocus = true;
            button.forceActiveFocus(Qt.TabFocusReason);
            const ring = button.parts.focusRing;
            compareProperties(ring, Object.assign({ visible: true, themeType: "dark" }, row.ring));
            button.themeType = "global";
            compare(ring.themeType, "global");
            App.isKeyboardFocus = false;
        }

        function test_iconButtonToggles() {
            const button = make("UTIconButton", { buttonType: UTButtonType.Favorite });
            compareProperties(button, { width: 24, height: 24, checkable: true });
            tryVerify(() => button.contentItem.source.toString().endsWith("/favorite-bold"));
            mouseClick(button);
            tryVerify(() => button.contentItem.source.toString().endsWith("/favorite-filled"));
            button.buttonType = 99;
            verify(button.contentItem.source.toString().endsWith("/favorite-filled"));
        }

        function test_rectangleButtonGrowsOrElides() {
            const button = make("UTRectangleButton", { text: "A label of several words", width: 90 });
            tryVerify(() => button.implicitHeight > 28);
            verify(button.isTextEilded === false);
            button.singleLine = true;
            compare(button.implicitHeight, 28);
            tryVerify(() => button.isTextEilded);

            const wide = make("UTRectangleButton", { text: "Go", width: 200, iconName: "link-bold" });
            const icon = wide.parts.icon;
            compareProperties(icon, { width: 16, height: 16, x: Math.round((180 - 22 - wide.contentItem.contentWidth) / 2) });
            wide.LayoutMirroring.enabled = true;
            tryCompare(icon, "x", 180 - 16 - Math.round((180 - 22 - wide.contentItem.contentWidth) / 2));
            wide.iconName = "";
            compareProperties(wide.contentItem, { leftPadding: 0, rightPadding: 0 });
        }

        function test_multilinePill() {
            const pill = make("UTMultilinePillButton", {
                text: "Reception", width: 200, rightIcon: "link-bold", buttonStyle: UTButtonStyle.Secondary,
                shouldDisplayLineDesignator: true, lineDesignatorText: "2"
            });
            const { designator, icon } = pill.parts;
            compareProperties(designator, { x: 0, width: designator.height, opacity: 1, "border.width": 1 });
            compareProperties(icon, { x: 148, width: 20 });
            compareProperties(pill.contentItem, { leftPadding: designator.width + 6, rightPadding: 26 });
            compare(pill.Accessible.description, "2");
            pill.LayoutMirroring.enabled = true;
            compareProperties(icon, { x: 0 });
            compareProperties(designator, { x: 168 - designator.width });
            compareProperties(pill.contentItem, { leftPadding: 26, rightPadding: designator.width + 6 });
            pill.lineDesignatorText = "Home";
            tryVerify(() => designator.width > designator.height);

            pill.enabled = false;
            compare(designator.opacity, 0.3);
            pill.shouldUseSingleTextColor = true;
            compareProperties(pill, { "contentItem.color": App.getColorSet("text-primary").normal });
            pill.shouldDisplayLineDesignator = false;
            pill.rightIcon = "";
            compareProperties(pill.contentItem, { leftPadding: 0, rightPadding: 0 });
            pill.showBorder = false;
            compare(pill.background.border.width, 0);
        }

        function test_textButton() {
            const button = make("UTTextButton", { text: "Learn more" });
            compare(button.textColor, App.getColorSet("hyperlink-accent-text").normal);
            compare(button.textFont.pixelSize, 16);
            button.colorStyle = UTTextButtonEnum.Share;
            button.enabled = false;
            compare(button.textColor, App.getColorSet("sharewindow-control-text-primary").disabled);
            button.width = 40;
            tryVerify(() => button.isTextEilded);
            button.textElide = Text.ElideNone;
            tryVerify(() => !button.isTextEilded);
            button.changeCursor = true;
            verify(button.parts.cursor.enabled);
            button.changeCursor = false;
            verify(!button.parts.cursor.enabled);
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
            mouseMove(stage, 390, 290);
            stage.forceActiveFocus();
            tryVerify(() => !tip.isOpen);
        }

        function test_blockButton() {
            const button = make("UTBlockButton", { text: "<b>Title</b><br>a &lt;b&gt;", tooltip: "Tip", width: 200 });
            compare(button.Accessible.name, "Title, a <b>");
            const title = button.contentItem.text.split("<br>")[0];
            verify(title.includes(App.getColorSet("hyperlink-accent-text").normal.toString().slice(1)), title);
            ThemeManager.theme = "dark";
            verify(button.contentItem.text.includes(App.getColorSet("hyperlink-accent-text", "dark").normal.toString().slice(1)));
            const height = button.implicitHeight;
            button.text = "word ".repeat(1000);
            tryVerify(() => button.contentItem.truncated && button.implicitHeight > height);
            button.text = "";
            compare(button.Accessible.name, "Tip");
        }

        function test_chip() {
            const chip = make("UTChip", { text: "Design", param: { id: 7 }, leftIcon: "people-bold" });
            closed.target = chip;
            closed.clear();
            const closeIcon = chip.contentItem.children[0];
            compareProperties(chip, { height: 24, checkable: false });
            verify(!chip.parts || !chip.parts.leftIcon, "made when shown");
            chip.showLeftIcon = true;
            verify(chip.parts.leftIcon.visible);
            mousePress(closeIcon);
            compare(closed.count, 1, "on press");
            mouseRelease(closeIcon);
            chip.forceActiveFocus();
            keyClick(Qt.Key_Delete);
            keyClick(Qt.Key_Backspace);
            keyClick(Qt.Key_A);
            compare(closed.count, 3);
            compare(closed.signalArguments[2][0].id, 7);
            compare(closeIcon.children[0].Accessible.name, "Remove Design");

            chip.LayoutMirroring.enabled = true;
            compareProperties(closeIcon, { x: 0 });
            chip.width = 60;
            tryVerify(() => chip.isTextEilded);
            chip.enabled = false;
            mousePress(closeIcon);
            mouseRelease(closeIcon);
            compare(closed.count, 3);
        }
    }
}
