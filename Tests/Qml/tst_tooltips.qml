import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ToolTipManager.js" as ToolTipManager

ToolkitTestCase {
    name: "ToolTips"

    // A tool tip on a target of its own, with a window from the host.
    function makeTip(properties: var): var {
        const target = make("KItem", { x: 40, y: 40, width: 80, height: 24 });
        const tip = make("UTToolTip", Object.assign({ tooltipText: "Mute" }, properties), target);
        tip.anchors.fill = target;
        tip.showToolTip.connect(() => tip.tooltipWindow = ToolTipWindowManager.getWindow(tip, true));
        return tip;
    }

    function makeWrapper(properties: var): var {
        return make("ToolTipWithWindow", Object.assign({ tooltipText: "Call" }, properties));
    }

    function isShown(tip: var): bool {
        return Boolean(tip.tooltipItem && tip.tooltipItem.parent && tip.tooltipWindow.visible);
    }

    function test_look() {
        const paragraph = "word ".repeat(40);
        const endless = "w".repeat(200);
        for (const [type, properties, smallest, largest] of [
            ["NativeToolTip", { tooltipText: "a" }, Qt.size(20, 20), Qt.size(20, 24)],
            ["NativeToolTip", { tooltipText: paragraph, maximumWidth: 308, maximumLineCount: -1 }, Qt.size(280, 60), Qt.size(316, 200)],
            ["NativeToolTip", { tooltipText: endless, maximumWidth: 308, maximumLineCount: -1 }, Qt.size(280, 60), Qt.size(316, 200)],
            ["NativeToolTip", { tooltipText: "a\nb\nc\nd\ne" }, Qt.size(20, 40), Qt.size(40, 60)],
            ["NativeToolTip", { tooltipText: "<b>a</b>" }, Qt.size(40, 20), Qt.size(90, 24)],
            ["CustomToolTip", { tooltipText: paragraph, maximumLineCount: -1 }, Qt.size(250, 90), Qt.size(302, 300)]
        ]) {
            const { width, height } = make(type, properties);
            const message = "%1, \"%2\": %3 x %4".arg(type).arg(properties.tooltipText).arg(width).arg(height);
            verify(width >= smallest.width && width <= largest.width, message);
            verify(height >= smallest.height && height <= largest.height, message);
        }
    }

    function test_balloonMakesRoomForItsArrow() {
        const tip = make("CustomToolTip", { tooltipText: "Mute" });
        const plain = Qt.size(tip.width, tip.height);
        for (const [anchor, x, y, width, height] of [["Left", 10, 0, 10, 0], ["Right", 0, 0, 10, 0], ["Top", 0, 10, 0, 10], ["Bottom", 0, 0, 0, 10]]) {
            tip.arrowAnchor = UTTooltipEnum[anchor];
            compareProperties(tip, { width: plain.width + width, height: plain.height + height, "children.0.x": x, "children.0.y": y });
        }
    }

    function test_showsAndHides() {
        const tip = makeTip({ tooltipStyle: UTTooltipEnum.Customized, themeType: "dark" });
        const data = tip.UTToolTipData;
        tip.hovered = true;
        verify(!tip.tooltipItem); // only after the event
        tryVerify(() => isShown(tip));
        compareProperties(tip.tooltipItem, { tooltipText: "Mute", themeType: "dark", maximumWidth: 308, radius: 8 });
        compare(tip.UTPopOverData.popOverSize, Qt.size(tip.tooltipWindow.width, tip.tooltipWindow.height));
        compare(Qt.point(tip.tooltipWindow.x, tip.tooltipWindow.y), tip.UTPopOverData.popOverPosition);
        tip.focused = true;
        tip.hovered = false;
        verify(!data.visible && !tip.tooltipItem && !tip.tooltipWindow.visible);
        compare(tip.UTPopOverData.popOverSize, Qt.size(1, 1));
    }

    function test_text() {
        const tip = makeTip({ hovered: true });
        tryVerify(() => isShown(tip));
        tip.tooltipText = "Unmute";
        compare(tip.tooltipItem.tooltipText, "Unmute");
        tip.tooltipText = "";
        compare(tip.tooltipItem, null);
        compare(tip.tooltipWindow.contentItem.children[0].children.length, 0);
    }

    function test_oneAtATime() {
        const first = makeTip({ hovered: true });
        tryVerify(() => isShown(first));
        const second = makeTip({ focused: true });
        verify(!first.UTToolTipData.visible && !first.tooltipItem);
        tryVerify(() => isShown(second));
        compare(second.tooltipWindow, first.tooltipWindow);
        first.hovered = false; // late news from the one that has gone takes nothing from the one that shows
        verify(isShown(second));
        const wrapper = makeWrapper({ active: true });
        verify(!second.UTToolTipData.visible);
        tryVerify(() => Boolean(wrapper.tooltipItem?.visible));
        second.focused = false;
        second.focused = true;
        compare(wrapper.tooltipItem, null);
    }

    function test_nothingToShow() {
        for (const [properties, isWindowWanted] of [[{ tooltipText: "" }, false], [{}, true]]) {
            const tip = make("UTToolTip", Object.assign({ tooltipText: "Mute" }, properties));
            const asked = spyOn(tip, "showToolTip");
            tip.active = true;
            const after = makeTip({ managedByToolTipManager: false, active: true }); // its turn comes later
            tryVerify(() => isShown(after));
            compare(asked.count > 0, isWindowWanted);
            verify(!tip.tooltipExist());
            verify(tip.UTPopOverData.popOverSize.width <= 1);
        }
    }

    function test_timers() {
        const tip = makeTip({ delayToStartTime: 50, toggleOffTime: 50, active: true });
        const hides = spyOn(tip, "aboutToHide");
        tryVerify(() => hides.count > 0);
        verify(tip.UTToolTipData.visible && !tip.tooltipItem && !tip.tooltipWindow.visible);
        tip.visible = false;
        verify(!tip.UTToolTipData.visible);
    }

    function test_targetMoves() {
        const tip = makeTip({ updatePositionTime: 20, hovered: true });
        tryVerify(() => isShown(tip));
        const other = makeTip({ updatePositionTime: 40, active: true, managedByToolTipManager: false });
        other.showToolTip.connect(() => other.tooltipWindow = ToolTipWindowManager.getWindow(other));
        tryVerify(() => isShown(other));
        tip.parent.x += 1;
        other.parent.x += 1;
        tryVerify(() => !isShown(other)); // nobody points at it; its look comes later than the first's
        verify(isShown(tip));
    }

    function test_destruction() {
        for (const [makeOne, shows] of [[makeTip, false], [makeTip, true], [makeWrapper, false], [makeWrapper, true]]) {
            const tip = makeOne({ active: true });
            if (shows)
                tryVerify(() => tip.tooltipItem !== null);
            const gone = spyOn(tip.Component, "destruction");
            tip.destroy();
            tryCompare(gone, "count", 1);
            compare(ToolTipManager.currentOwner, null);
        }
    }

    function test_wrapperWaits() {
        const wrapper = makeWrapper({ active: true });
        wrapper.active = false;
        wrapper.active = true;
        compare(wrapper.tooltipItem, null);
        tryVerify(() => Boolean(wrapper.tooltipItem?.visible));
        verify(wrapper.tooltipItem.width >= 20);
        wrapper.active = false;
        compare(wrapper.tooltipItem, null);
    }

    function test_popOverInViewOfCpp() {
        // The test's own window, a QQuickView.
        const popOver = make("UTPopOver", { active: true, showWithActive: false, automaticClose: false });
        compare(popOver.windowComponentInstance.transientParent, Window.window);
    }
}
