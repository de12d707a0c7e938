import QtQuick
import QtQuick.Window
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 400
    height: 300

    Item {
        id: outer

        x: 20
        y: 30
        z: 4
        width: 200
        height: 150

        Item {
            id: inner

            x: 10
            y: 15
            width: 150
            height: 100
            clip: true

            Item {
                id: focusable

                x: 5
                y: 6
                width: 80
                height: 30
                activeFocusOnTab: true

                KCustomFocusItem {
                    id: ring
                }
            }
        }
    }

    Item {
        id: other

        activeFocusOnTab: true
    }

    FocusScope {
        id: focusScope
    }

    Item {
        id: host

        x: 3
        y: 4
        width: 390
        height: 290
    }

    // The ring's loader where it is shown: the younger of the host's children that holds a canvas.
    function loaderIn(parent: Item): Item {
        return Array.from(parent.children).find(child => child.item && child.item instanceof KFocusItemCanvas) ?? null;
    }

    function topMost(): Item {
        let item = root;
        while (item.parent)
            item = item.parent;
        return item;
    }

    component RingCase: TestCase {
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function cleanup() {
            App.isKeyboardFocus = false;
            ThemeManager.theme = "light";
            other.forceActiveFocus();
            ring.customRect = Qt.rect(0, 0, 0, 0);
            ring.designatedParent = undefined;
            ring.innerFocusBorder = false;
            outer.x = 20;
            outer.height = 150;
            outer.visible = true;
            focusable.width = 80;
        }

        function show() {
            focusable.forceActiveFocus();
            App.isKeyboardFocus = true;
            verify(ring.visible);
        }

        // The ring's rectangle in root's coordinates.
        function ringRect(parent: Item): rect {
            const loader = root.loaderIn(parent);
            verify(loader && loader.visible && loader.parent === parent);
            compare([loader.item.width, loader.item.height], [loader.width, loader.height]);
            const position = parent.mapToItem(root, loader.x, loader.y);
            return Qt.rect(position.x, position.y, loader.width, loader.height);
        }
    }

    RingCase {
        name: "Showing"

        function test_defaults() {
            compare([ring.innerFocusBorder, ring.isRectangle, ring.isSemicircle, ring.cornerRadius, ring.extraSpace], [false, false, true, 8, 5]);
            compare([ring.designatedParent, ring.isExtraSmall, ring.rectangularCornerMask, ring.isCustomRect], [undefined, undefined, 0, false]);
            const corners = ["None", "TopLeft", "TopRight", "BottomLeft", "BottomRight"];
            // By their full names: unscoped, Item's transform origins come first.
            compare(corners.map(corner => KBasicFocusItem.RectangularCorner[corner]), [0, 1, 2, 4, 8]);
            compare(corners.map(corner => DrawUtils.RectangularCorners[corner]), [0, 1, 2, 4, 8]);
        }

        function test_onlyForKeyboardFocus() {
            verify(!ring.visible);
            compare(root.loaderIn(root.topMost()), null);

            mousePress(focusable);
            focusable.forceActiveFocus();
            mouseRelease(focusable);
            verify(!ring.visible, "focus gained by mouse");

            App.isKeyboardFocus = true;
            verify(ring.visible);
            verify(root.loaderIn(root.topMost()));

            other.forceActiveFocus();
            verify(!ring.visible);
            compare(root.loaderIn(root.topMost()), null, "the ring is taken down");
            compare(ring.children.length, 1);
            compare(ring.children[0].item, null, "and is back in the focus item");
        }

        function test_hiddenWithItsAncestors() {
            show();
            outer.visible = false;
            verify(!root.loaderIn(root.topMost()));
            outer.visible = true;
            verify(!ring.visible || root.loaderIn(root.topMost()));
        }

        function test_focusedFromTheStart() {
            App.isKeyboardFocus = true;
            focusScope.forceActiveFocus();
            const item = createTemporaryObject(focusedComponent, focusScope);
            verify(item.activeFocus);
            compare(ringRect(root.topMost()), Qt.rect(200 - 5, 200 - 5, 60, 40));
            item.destroy();
            tryVerify(() => !root.loaderIn(root.topMost()));
        }

        Component {
            id: focusedComponent

            Item {
                x: 200
                y: 200
                width: 50
                height: 30
                focus: true

                KCustomFocusItem {}
            }
        }
    }

    RingCase {
        name: "Placing"

        function test_overTheItem() {
            show();
            compare(ringRect(root.topMost()), Qt.rect(35 - 5, 51 - 5, 90, 40));
            verify(root.loaderIn(root.topMost()).z >= 0);
            focusable.width = 120;
            compare(ringRect(root.topMost()), Qt.rect(30, 46, 130, 40));
        }

        function test_followsAncestors() {
            show();
            outer.x = 60;
            compare(ringRect(root.topMost()).x, 70);
            inner.y = 40;
            compare(ringRect(root.topMost()).y, 71);
            inner.y = 15;
            compare(ringRect(root.topMost()).y, 46);

            // Hidden it does not follow, and shows in the right place all the same.
            App.isKeyboardFocus = false;
            outer.x = 0;
            App.isKeyboardFocus = true;
            compare(ringRect(root.topMost()).x, 10);
        }

        function test_customRect() {
            ring.customRect = Qt.rect(10, 2, 30, 20);
            show();
            compare([ring.x, ring.y, ring.width, ring.height], [10, 2, 30, 20]);
            compare(ringRect(root.topMost()), Qt.rect(40, 48, 40, 30));
            ring.customRect = Qt.rect(0, 0, 0, 8);
            verify(ring.isCustomRect);
            compare(ringRect(root.topMost()), Qt.rect(30, 46, 10, 18));
            ring.customRect = Qt.rect(0, 0, 0, 0);
            verify(!ring.isCustomRect);
            compare(ringRect(root.topMost()), Qt.rect(30, 46, 90, 40));
        }

        function test_designatedParent() {
            ring.designatedParent = host;
            show();
            compare(ringRect(host), Qt.rect(30, 46, 90, 40));
            compare(root.loaderIn(root.topMost()), null);
            ring.designatedParent = outer;
            compare(ringRect(outer), Qt.rect(30, 46, 90, 40));
            // Leaves its host before that goes.
            ring.designatedParent = undefined;
            compare(ringRect(root.topMost()), Qt.rect(30, 46, 90, 40));
        }

        function test_innerBorder() {
            ring.innerFocusBorder = true;
            show();
            compare(ringRect(root.topMost()), Qt.rect(35, 51, 80, 30));
            ring.innerFocusBorder = false;
            compare(ringRect(root.topMost()), Qt.rect(30, 46, 90, 40));
        }

        function test_aboveItsBranch() {
            ring.designatedParent = root;
            show();
            const siblings = Array.from(root.children);
            const loader = root.loaderIn(root);
            compare(loader.z, outer.z);
            verify(siblings.indexOf(loader) > siblings.indexOf(outer));
        }
    }

    KBasicFocusItem {
        id: settings

        x: 250
        y: 200
        width: 80
        height: 30
    }

    Component {
        id: canvasComponent

        KFocusItemCanvas {
            focusItem: settings
            x: settings.x - settings.extraSpace
            y: settings.y - settings.extraSpace
            width: settings.width + 2 * settings.extraSpace
            height: settings.height + 2 * settings.extraSpace
        }
    }

    RingCase {
        name: "Painting"

        readonly property var plain: ({
                isRectangle: false,
                cornerRadius: 8,
                isExtraSmall: undefined,
                isSemicircle: true,
                rectangularCornerMask: 0,
                innerFocusBorder: false,
                themeType: "global"
            })

        // Draws the outlines anew with the drawing library alone, to compare with what the canvas shows.
        function test_outlines_data() {
            const rounded = { isRectangle: true };
            const mask = DrawUtils.RectangularCorners.TopLeft | DrawUtils.RectangularCorners.BottomLeft;
            return [
                { tag: "pill", values: {}, draw: "Sides", offsets: [0, 2, 4] },
                { tag: "inner pill", values: { innerFocusBorder: true }, draw: "Sides", offsets: [-5, -3, -1] },
                // Inner line: 8 - 4, outer line: 8 - 0.
                { tag: "rectangle", values: rounded, draw: "Rectangle", offsets: [0, 2, 4], radii: [4, 6, 8] },
                {
                    tag: "inner rectangle",
                    values: { isRectangle: true, innerFocusBorder: true, cornerRadius: 6 },
                    draw: "Rectangle",
                    offsets: [-5, -3, -1],
                    radii: [7, 9, 11]
                },
                { tag: "extra small", values: { isRectangle: true, isExtraSmall: true }, draw: "Rectangle", offsets: [0, 2, 4], radii: [-2, 0, 2] },
                { tag: "not extra small", values: { isRectangle: true, isExtraSmall: false }, draw: "Rectangle", offsets: [0, 2, 4], radii: [0, 2, 4] },
                { tag: "semicircle with square corners", values: { rectangularCornerMask: mask }, draw: "Mixed", mask: mask, offsets: [0, 2, 4], radii: [20, 18, 18] },
                {
                    tag: "square corners",
                    values: { rectangularCornerMask: mask, isSemicircle: false, cornerRadius: 12 },
                    draw: "Mixed",
                    mask: mask,
                    offsets: [0, 2, 4],
                    radii: [12, 10, 10]
                },
                {
                    tag: "mirrored",
                    values: { rectangularCornerMask: mask, isSemicircle: false },
                    draw: "Mixed",
                    mirrored: true,
                    mask: DrawUtils.RectangularCorners.TopRight | DrawUtils.RectangularCorners.BottomRight,
                    offsets: [0, 2, 4],
                    radii: [8, 6, 6]
                }
            ];
        }

        function test_outlines(data) {
            // On the test's white window the light theme's inner line would not be seen.
            ThemeManager.theme = "dark";
            settings.LayoutMirroring.enabled = data.mirrored === true;
            Object.assign(settings, plain, data.values);
            const canvas = createTemporaryObject(canvasComponent, root);
            const reference = createTemporaryObject(referenceComponent, root, { row: data, width: canvas.width, height: canvas.height });
            blank.width = canvas.width;
            blank.height = canvas.height;
            tryVerify(() => !grabImage(reference).equals(grabImage(blank)));
            tryVerify(() => grabImage(canvas).equals(grabImage(reference)));
            settings.LayoutMirroring.enabled = false;
        }

        Item {
            id: blank

            x: 100
            y: 200
        }

        Component {
            id: referenceComponent

            Canvas {
                required property var row

                onPaint: {
                    const ctx = getContext("2d");
                    const thickness = [2, 2, 1];
                    const inner = App.getColorSet("global-focus-innerline").normal;
                    const middle = App.getColorSet("global-focus-outline").normal;
                    const colors = [inner, middle, Qt.rgba(middle.r, middle.g, middle.b, 0.3)];
                    const space = row.offsets[0] < 0 ? 0 : 5;
                    for (let i = 0; i < 3; ++i) {
                        const line = [ctx, height, width, space, thickness[i], row.offsets[i], colors[i]];
                        if (row.draw === "Sides")
                            DrawUtils.drawRoundedSidesOutline(...line);
                        else if (row.draw === "Rectangle")
                            DrawUtils.drawRoundedCornerRectangleOutline(...line, row.radii[i]);
                        else
                            DrawUtils.drawRectangularAndRoundCornerOutline(...line, row.radii[i], row.mask);
                    }
                }
            }
        }

        function test_repaintsWithThemeAndSettings() {
            Object.assign(settings, plain);
            const canvas = createTemporaryObject(canvasComponent, root);
            // The middle line lies on row 2 and 1, the outer on row 0.
            const middle = theme => App.getColorSet("global-focus-outline", theme).normal;
            tryVerify(() => Qt.colorEqual(grabImage(canvas).pixel(45, 2), middle("light")));

            ThemeManager.theme = "dark";
            compare(canvas.middleColor, middle("dark"));
            compare(canvas.innerColor, App.getColorSet("global-focus-innerline", "dark").normal);
            fuzzyCompare(canvas.outerColor.a, 0.3, 0.01);
            tryVerify(() => Qt.colorEqual(grabImage(canvas).pixel(45, 2), middle("dark")));

            ThemeManager.theme = "highContrast";
            compare(canvas.outerColor, middle("highContrast"), "in full in high contrast");
            settings.themeType = "dark";
            compare(canvas.middleColor, middle("dark"));
            ThemeManager.theme = "light";

            settings.themeType = "global";
            const pill = grabImage(canvas);
            settings.isRectangle = true;
            tryVerify(() => !grabImage(canvas).equals(pill));

            canvas.visible = false;
            settings.isRectangle = false;
            canvas.visible = true;
            tryVerify(() => grabImage(canvas).equals(pill));
        }
    }
}
