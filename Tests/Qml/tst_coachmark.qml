import QtQuick
import UIToolkitQml 1.0

ToolkitTestCase {
    id: testCase

    name: "CoachMark"

    readonly property var full: ({
        showHeader: true, headerText: "Title", primaryText: "Text ".repeat(100), showPrimaryButton: true, primaryButtonText: "OK",
        showHyperlink: true, hyperLinkButtonText: "More", hyperLinkUrl: "https://example.org", coachmarkRadius: 8,
        previewImageSource: "qrc:/Resources/sample-landscape.png"
    })

    Component { id: bar; Rectangle { objectName: "bar"; height: 30 } }
    Component { id: window; Window { width: 400; height: 500 } }

    //! In a window of its own, for it closes that.
    function open(properties: var): var {
        const host = createTemporaryObject(window, testCase);
        const mark = make("UTCoachMark", Object.assign({}, full, properties), host.contentItem);
        host.show();
        host.requestActivate();
        tryVerify(() => host.active && !mark.isFirstFocused);
        return mark;
    }

    //! The visible item below \a item with a property of the given value.
    function find(item: Item, property: string, value: var): Item {
        return item[property] === value ? item : Array.from(item.children).filter(child => child.visible)
            .map(child => find(child, property, value)).find(found => found) ?? null;
    }
    function place(mark: Item, property: string, value: var): rect {
        const item = find(mark, property, value);
        return item ? item.mapToItem(mark, 0, 0, item.width, item.height) : Qt.rect(0, 0, 0, 0);
    }

    function test_layout_data() {
        const title = ["text", "Title"], picture = ["fillMode", Image.PreserveAspectCrop], description = ["text", full.primaryText];
        const button = ["text", "OK"], link = ["text", "More"], cross = ["buttonIcon", "cancel-bold"];
        return table(["tag", "properties", "order", "x"], [
            ["all", {}, [title, picture, description, button], 12],
            ["picture first", { headerBelowPreview: true }, [picture, title, description, button], 12],
            ["cross in the header", { previewImageSource: "" }, [cross, description, link], 12],
            ["cross at the text", { showHeader: false }, [picture, cross, button], 12],
            ["wrapped", { hyperLinkButtonText: "More", primaryButtonText: "Much too long to share a row" }, [description, ["text", "Much too long to share a row"], link], 12],
            ["arrow on the left", { _arrowAnchor: UTPopOverEnum.Left, arrowSize: 16 }, [title, picture, description], 28]
        ]);
    }
    function test_layout(row) {
        const mark = open(row.properties);
        compare(mark.width, row.x - 12 + 280);
        let last = 0;
        for (const [property, value] of row.order) {
            const item = place(mark, property, value);
            verify(item.height > 0 && item.y >= last, value);
            last = item.y + item.height;
        }
        verify(mark.height >= last + 12);
        compare(place(mark, "text", full.primaryText).x, row.x);
    }

    function test_description() {
        const mark = open({ showHyperlink: false });
        verify(place(mark, "text", full.primaryText).height <= 96);
        mark.descriptionTextMaxHeight = 0;
        tryVerify(() => place(mark, "text", full.primaryText).height > 200);
        mark.primaryButtonRightAligned = true;
        tryVerify(() => place(mark, "text", "OK").x > 200);
        mark.contentDelegate = bar;
        compare(place(mark, "objectName", "bar").width, 256);
        compare(place(mark, "text", full.primaryText).height, 0);
        mark.contentDelegate = "no component";
        tryVerify(() => place(mark, "text", full.primaryText).height > 200);
    }

    function test_closes_data() {
        return table(["tag", "act", "acknowledged"], [
            ["button", mark => mouseClick(find(mark, "text", "OK")), true],
            ["key on the focused button", () => keyClick(Qt.Key_Space), true],
            ["cross", mark => mouseClick(find(mark, "buttonIcon", "cancel-bold")), false],
            ["Escape", () => keyClick(Qt.Key_Escape), false]
        ]);
    }
    function test_closes(row) {
        const mark = open();
        const host = mark.Window.window;
        const accepted = spyOn(mark, "accepted");
        const linkClicked = spyOn(mark, "hyperLinkClicked");
        mouseClick(find(mark, "text", "More"));
        compare(linkClicked.signalArguments[0][0], "https://example.org");
        verify(host.visible);
        find(mark, "text", "OK").forceActiveFocus(Qt.TabFocusReason);
        row.act(mark);
        compare(accepted.signalArguments.map(args => args[0]), [row.acknowledged]);
        tryVerify(() => !host.visible);
    }

    function test_firstFocus_data() {
        return table(["tag", "properties", "property", "value"], [
            ["button", {}, "text", "OK"],
            ["link", { showPrimaryButton: false }, "text", "More"],
            ["cross", { showPrimaryButton: false, showHyperlink: false }, "buttonIcon", "cancel-bold"]
        ]);
    }
    function test_firstFocus(row) {
        verify(find(open(row.properties), row.property, row.value).activeFocus);
    }
}
