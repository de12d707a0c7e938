import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

ToolkitTestCase {
    id: testCase

    name: "FocusRing"

    readonly property Item topMost: Window.contentItem

    Item {
        id: outer

        x: 20; y: 30; z: 4; width: 200; height: 150

        Item {
            id: inner

            x: 10; y: 15; width: 150; height: 100
            clip: true

            Item { id: focusable; x: 5; y: 6; width: 80; height: 30; activeFocusOnTab: true }
        }
    }
    Item { id: other; activeFocusOnTab: true }
    Item { id: host; x: 3; y: 4; width: 390; height: 290 }
    FocusScope { id: focusScope; x: 200; y: 200; width: 50; height: 30 }
    Item { id: blank; x: 100; y: 200; width: 90; height: 40 }

    // Draws the outlines with the drawing library alone, to compare with what the ring's canvas shows.
    Component {
        id: referenceComponent

        Canvas {
            id: reference

            required property var row

            width: 90
            height: 40
            onPaint: {
                const ctx = reference.getContext("2d");
                const inner = App.getColorSet("global-focus-innerline").normal;
                const middle = App.getColorSet("global-focus-outline").normal;
                const colors = [inner, middle, Qt.alpha(middle, 0.3)];
                const { offsets, draw, radii, mask } = reference.row;
                for (let i = 0; i < 3; ++i)
                    DrawUtils[draw](ctx, 40, 90, offsets[0] < 0 ? 0 : 5, [2, 2, 1][i], offsets[i], colors[i], radii ? radii[i] : 0, mask);
            }
        }
    }

    // What holds the canvas in parentItem, or null.
    function loaderIn(parentItem: Item): Item {
        return Array.from(parentItem.children).find(child => child.item && child.item instanceof KFocusItemCanvas) ?? null;
    }

    function showRing(): var {
        const ring = make("KCustomFocusItem", {}, focusable);
        focusable.forceActiveFocus();
        App.isKeyboardFocus = true;
        verify(ring.visible);
        return ring;
    }

    // Compares the rectangle of the ring that shows in parentItem, in the test case's coordinates.
    function compareRing(expected: rect, parentItem: var): void {
        const loader = loaderIn(parentItem ?? topMost);
        verify(loader && loader.visible);
        compareProperties(loader, { "item.width": loader.width, "item.height": loader.height });
        const position = loader.parent.mapToItem(testCase, loader.x, loader.y);
        compare(Qt.rect(position.x, position.y, loader.width, loader.height), expected);
    }

    function test_onlyForKeyboardFocus() {
        other.forceActiveFocus();
        App.isKeyboardFocus = true;
        const ring = make("KCustomFocusItem", {}, focusable);
        verify(!ring.visible, "no focus");
        mousePress(focusable);
        focusable.forceActiveFocus();
        mouseRelease(focusable);
        verify(!ring.visible, "focus gained by mouse");
        compare(loaderIn(topMost), null);

        App.isKeyboardFocus = true;
        verify(ring.visible);
        verify(loaderIn(topMost));

        other.forceActiveFocus();
        verify(!ring.visible);
        compare(loaderIn(topMost), null, "the ring is taken down");
        compareProperties(ring, { "children.length": 1, "children.0.item": null });

        focusable.forceActiveFocus();
        verify(loaderIn(topMost));
        outer.visible = false;
        compare(loaderIn(topMost), null, "hidden with its ancestor");
        outer.visible = true;
    }

    function test_focusedFromTheStart() {
        App.isKeyboardFocus = true;
        focusScope.forceActiveFocus();
        const late = make("KCustomFocusItem", {}, focusScope);
        compareRing(Qt.rect(195, 195, 60, 40));
        late.destroy();
        tryVerify(() => !loaderIn(topMost));
    }

    function test_follows_data() {
        const none = Qt.rect(0, 0, 0, 0);
        return table(["tag", "item", "property", "before", "after", "expected"], [
            ["width", focusable, "width", 80, 120, Qt.rect(30, 46, 130, 40)],
            ["height", focusable, "height", 30, 40, Qt.rect(30, 46, 90, 50)],
            ["parent", inner, "y", 15, 40, Qt.rect(30, 71, 90, 40)],
            ["ancestor", outer, "x", 20, 60, Qt.rect(70, 46, 90, 40)],
            ["inside", null, "innerFocusBorder", false, true, Qt.rect(35, 51, 80, 30)],
            ["rectangle of its own", null, "customRect", none, Qt.rect(10, 2, 30, 20), Qt.rect(40, 48, 40, 30)],
            ["height of its own", null, "customRect", none, Qt.rect(0, 0, 0, 8), Qt.rect(30, 46, 10, 18)]
        ]);
    }

    function test_follows(data) {
        const ring = showRing();
        const item = data.item ?? ring;
        for (const hides of [false, true]) {
            compareRing(Qt.rect(30, 46, 90, 40));
            // Hidden it does not follow, and shows in the right place all the same.
            App.isKeyboardFocus = !hides;
            item[data.property] = data.after;
            App.isKeyboardFocus = true;
            compareRing(data.expected);
            item[data.property] = data.before;
        }
    }

    function test_designatedParent() {
        const ring = showRing();
        ring.designatedParent = host;
        compare(loaderIn(topMost), null);
        for (const parentItem of [host, outer, undefined, testCase]) {
            ring.designatedParent = parentItem;
            compareRing(Qt.rect(30, 46, 90, 40), parentItem);
        }
        const siblings = Array.from(testCase.children);
        const loader = loaderIn(testCase);
        verify(loader.z === outer.z && siblings.indexOf(loader) > siblings.indexOf(outer), "above the branch that it belongs to");
    }

    // A canvas with those settings. grabImage takes an item's position for one in the window, so only the canvas
    // has one other than (0, 0).
    function canvasOf(values: var, isMirrored: bool): var {
        const settings = make("KBasicFocusItem", values);
        settings.LayoutMirroring.enabled = isMirrored;
        return make("KFocusItemCanvas", { focusItem: settings, x: 250, y: 200, width: 90, height: 40 }, settings);
    }

    function test_outlines_data() {
        const { TopLeft, BottomLeft, TopRight, BottomRight } = DrawUtils.RectangularCorners;
        const left = TopLeft | BottomLeft, right = TopRight | BottomRight;
        const around = [0, 2, 4];
        const inside = [-5, -3, -1];
        const [pill, rectangle, mixed] = ["drawRoundedSidesOutline", "drawRoundedCornerRectangleOutline", "drawRectangularAndRoundCornerOutline"];
        return table(["tag", "draw", "values", "offsets", "radii", "mask"], [
            ["pill", pill, {}, around],
            ["inner pill", pill, { innerFocusBorder: true }, inside],
            // Inner line: 8 - 4, outer line: 8 - 0.
            ["rectangle", rectangle, { isRectangle: true }, around, [4, 6, 8]],
            ["inner rectangle", rectangle, { isRectangle: true, innerFocusBorder: true, cornerRadius: 6 }, inside, [7, 9, 11]],
            ["extra small", rectangle, { isRectangle: true, isExtraSmall: true }, around, [-2, 0, 2]],
            ["not extra small", rectangle, { isRectangle: true, isExtraSmall: false }, around, [0, 2, 4]],
            ["semicircle with square corners", mixed, { rectangularCornerMask: left }, around, [20, 18, 18], left],
            ["square corners", mixed, { rectangularCornerMask: left, isSemicircle: false, cornerRadius: 12 }, around, [12, 10, 10], left],
            ["mirrored", mixed, { rectangularCornerMask: left, isSemicircle: false }, around, [8, 6, 6], right]
        ]);
    }

    function test_outlines(data) {
        // On the test's white window the light theme's inner line would not be seen.
        ThemeManager.theme = "dark";
        const canvas = canvasOf(data.values, data.tag === "mirrored");
        const reference = createTemporaryObject(referenceComponent, testCase, { row: data });
        tryVerify(() => !grabImage(reference).equals(grabImage(blank)));
        tryVerify(() => grabImage(canvas).equals(grabImage(reference)));
    }

    function test_repaintsWithThemeAndSettings() {
        const canvas = canvasOf({}, false);
        const settings = canvas.focusItem;
        const middle = theme => App.getColorSet("global-focus-outline", theme).normal;
        for (const [theme, themeType, expected] of [
            ["light", "global", "light"], ["dark", "global", "dark"], ["highContrast", "global", "highContrast"],
            ["highContrast", "dark", "dark"], ["light", "global", "light"]
        ]) {
            ThemeManager.theme = theme;
            settings.themeType = themeType;
            compare(canvas.innerColor, App.getColorSet("global-focus-innerline", expected).normal);
            fuzzyCompare(canvas.outerColor.a, theme === "highContrast" ? 1 : 0.3, 0.01);
            // The middle line lies on the rows 1 and 2.
            tryVerify(() => Qt.colorEqual(grabImage(canvas).pixel(45, 2), middle(expected)), undefined, "%1, %2".arg(theme).arg(themeType));
        }

        const before = grabImage(canvas);
        settings.isRectangle = true;
        tryVerify(() => !grabImage(canvas).equals(before));
        canvas.visible = false;
        settings.isRectangle = false;
        canvas.visible = true;
        tryVerify(() => grabImage(canvas).equals(before));
    }
}
