import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 400
    height: 300

    // A set with a colour of its own for each state; focused differs from normal.
    readonly property var colorSet: ({
            isValid: true,
            name: "some-set",
            normal: "normal",
            hovered: "hovered",
            pressed: "pressed",
            disabled: "disabled",
            focused: "focused",
            checked: "checked"
        })

    // Stands in for a 2D context: notes each call and each assignment, lengths rounded to a tenth of a milli-pixel.
    function recorder(): var {
        const calls = [];
        const round = v => typeof v === "number" ? Math.round(v * 10000) / 10000 : v;
        const context = { calls: calls };
        for (const name of ["beginPath", "closePath", "moveTo", "lineTo", "arc", "quadraticCurveTo", "stroke", "clip", "clearRect", "fillRect"])
            context[name] = (...args) => void calls.push([name, ...args.map(round)].join(" "));
        for (const name of ["strokeStyle", "lineWidth", "fillStyle"])
            Object.defineProperty(context, name, { set: value => void calls.push(name + "=" + value) });
        return context;
    }

    function item(state: string): var {
        const result = { enabled: true, pressed: false, hovered: false, activeFocus: false, checked: false, readOnly: false };
        for (const flag of state.split(" ").filter(s => s.length > 0))
            result[flag.replace("!", "")] = !flag.startsWith("!");
        return result;
    }

    TestCase {
        name: "ThemeUtils"

        function init() {
            failOnWarning(/.?/);
        }

        function test_stateRule_data() {
            return [
                { tag: "at rest", state: "", color: "normal", field: "normal" },
                { tag: "checked", state: "checked", color: "checked", field: "checked" },
                { tag: "focus before checked", state: "activeFocus checked", color: "focused", field: "focused" },
                { tag: "hover before focus", state: "hovered activeFocus checked", color: "hovered", field: "hovered" },
                { tag: "press before hover, no press in fields", state: "pressed hovered activeFocus", color: "pressed", field: "hovered" },
                { tag: "pressed alone", state: "pressed", color: "pressed", field: "normal" },
                { tag: "disabled before all", state: "!enabled pressed hovered activeFocus checked", color: "disabled", field: "disabled" },
                { tag: "read-only before all in fields", state: "readOnly !enabled hovered activeFocus", color: "disabled", field: "normal" }
            ];
        }

        function test_stateRule(data) {
            compare(ThemeUtils.getColor(root.item(data.state), root.colorSet), data.color);
            compare(ThemeUtils.getTextFieldColor(root.item(data.state), root.colorSet), data.field);
        }

        function test_focusColorEqualToNormalLetsCheckedThrough() {
            const set = Object.assign({}, root.colorSet, { focused: "normal" });
            compare(ThemeUtils.getColor(root.item("activeFocus checked"), set), "checked");
            compare(ThemeUtils.getTextFieldColor(root.item("activeFocus checked"), set), "checked");
            compare(ThemeUtils.getColor(root.item("activeFocus"), set), "normal");
        }

        // The host's sets hold real colours, which compare by value and not by identity.
        function test_hostColorSets_data() {
            return [
                { tag: "light" },
                { tag: "dark" },
                { tag: "highContrast" }
            ];
        }

        function test_hostColorSets(data) {
            const set = App.getColorSet("button-primary-background", data.tag);
            verify(set.isValid);
            verify(Qt.colorEqual(ThemeUtils.getColor(root.item("hovered"), set), set.hovered));
            const focusShows = !Qt.colorEqual(set.focused, set.normal);
            verify(Qt.colorEqual(ThemeUtils.getColor(root.item("activeFocus checked"), set), focusShows ? set.focused : set.checked));
        }

        function test_nothingToPaint() {
            const invalid = Object.assign({}, root.colorSet, { isValid: false });
            compare(ThemeUtils.getColor(root.item("!enabled"), invalid), "transparent");
            compare(ThemeUtils.getColor(root.item(""), undefined), "transparent");
            compare(ThemeUtils.getColor(null, root.colorSet), "normal");
        }

        function test_nothingAtAllIsAnErrorOfTheScript() {
            let isRaised = false;
            try {
                ThemeUtils.getTextFieldColor(null, null);
            } catch (error) {
                isRaised = error instanceof TypeError;
            }
            verify(isRaised);
        }
    }

    TestCase {
        name: "DrawUtils"

        readonly property string quarter: "1.5708"
        readonly property string half: "3.1416"
        readonly property string threeQuarters: "4.7124"

        function init() {
            failOnWarning(/.?/);
        }

        function test_pill() {
            const context = root.recorder();
            // An item of 100 x 20 with a margin of 5: centre line 5 - 2 - 1 = 2 from the edge, arc radius 10 + 2 + 1.
            DrawUtils.drawRoundedSidesOutline(context, 30, 110, 5, 2, 2, "red");
            compare(context.calls, [
                "beginPath", "strokeStyle=red", "moveTo 15 2", "lineTo 95 2", "arc 95 15 13 %1 %2 false".arg(threeQuarters).arg(quarter), "lineTo 15 28",
                "arc 15 15 13 %1 %2 false".arg(quarter).arg(threeQuarters), "lineWidth=2", "stroke"
            ]);
        }

        function test_uprightPillIsARectangle() {
            const upright = root.recorder();
            const rectangle = root.recorder();
            DrawUtils.drawRoundedSidesOutline(upright, 60, 20, 5, 1, 4, "red");
            DrawUtils.drawRoundedCornerRectangleOutline(rectangle, 60, 20, 5, 1, 4, "red", 4);
            compare(upright.calls, rectangle.calls);

            const square = root.recorder();
            DrawUtils.drawRoundedSidesOutline(square, 20, 20, 5, 1, 4, "red");
            compare(square.calls.filter(call => call.startsWith("arc")).length, 2, "as high as wide is still a pill");
        }

        function test_roundedRectangle() {
            const context = root.recorder();
            DrawUtils.drawRoundedCornerRectangleOutline(context, 40, 60, 5, 2, 0, "red", 8);
            compare(context.calls, [
                "beginPath", "strokeStyle=red", "moveTo 12 4", "lineTo 48 4", "arc 48 12 8 %1 0 false".arg(threeQuarters), "lineTo 56 28",
                "arc 48 28 8 0 %1 false".arg(quarter), "lineTo 12 36", "arc 12 28 8 %1 %2 false".arg(quarter).arg(half), "lineTo 4 12",
                "arc 12 12 8 %1 %2 false".arg(half).arg(threeQuarters), "lineWidth=2", "stroke"
            ]);
        }

        function test_negativeRadiusIsSquare() {
            const negative = root.recorder();
            const square = root.recorder();
            DrawUtils.drawRoundedCornerRectangleOutline(negative, 40, 60, 5, 2, 0, "red", -3);
            DrawUtils.drawRoundedCornerRectangleOutline(square, 40, 60, 5, 2, 0, "red", 0);
            compare(negative.calls, square.calls);
            verify(negative.calls.includes("moveTo 4 4"));
        }

        // An inner line on a flat item would have a negative radius, at which a real canvas raises an error.
        function test_flatItemWithInnerLine() {
            const context = root.recorder();
            DrawUtils.drawRoundedSidesOutline(context, 4, 60, 0, 2, -5, "red");
            compare(context.calls.filter(call => call.startsWith("arc")).map(call => call.split(" ")[3]), ["0", "0"]);
        }

        function test_mixedCorners_data() {
            const first = ["beginPath", "strokeStyle=red"];
            const last = ["lineWidth=2", "stroke"];
            // The centre line lies 2 from the edge, so that the radius of 8 becomes 6.
            return [
                {
                    tag: "none square",
                    corners: DrawUtils.RectangularCorners.None,
                    calls: [
                        ...first, "moveTo 8 2", "lineTo 52 2", "arc 52 8 6 %1 0 false".arg(threeQuarters), "lineTo 58 32", "arc 52 32 6 0 %1 false".arg(quarter),
                        "lineTo 8 38", "arc 8 32 6 %1 %2 false".arg(quarter).arg(half), "lineTo 2 8", "arc 8 8 6 %1 %2 false".arg(half).arg(threeQuarters), ...last
                    ]
                },
                {
                    tag: "left ones square",
                    corners: DrawUtils.RectangularCorners.TopLeft | DrawUtils.RectangularCorners.BottomLeft,
                    calls: [
                        ...first, "moveTo 2 2", "lineTo 52 2", "arc 52 8 6 %1 0 false".arg(threeQuarters), "lineTo 58 32", "arc 52 32 6 0 %1 false".arg(quarter),
                        "lineTo 2 38", "lineTo 2 2", ...last
                    ]
                },
                {
                    tag: "all square",
                    corners: 15,
                    calls: [...first, "moveTo 2 2", "lineTo 58 2", "lineTo 58 38", "lineTo 2 38", "lineTo 2 2", ...last]
                }
            ];
        }

        function test_mixedCorners(data) {
            const context = root.recorder();
            DrawUtils.drawRectangularAndRoundCornerOutline(context, 40, 60, 5, 2, 2, "red", 8, data.corners);
            compare(context.calls, data.calls);
        }

        function test_mixedCornersWithSmallRadius() {
            const context = root.recorder();
            DrawUtils.drawRectangularAndRoundCornerOutline(context, 40, 60, 5, 2, 2, "red", 1, DrawUtils.RectangularCorners.None);
            verify(context.calls.includes("moveTo 2 2"), "a radius below the offset is none");
        }

        function test_swapCorners() {
            const corners = DrawUtils.RectangularCorners;
            compare(DrawUtils.swapRectangularCornersLeftRight(corners.None), corners.None);
            compare(DrawUtils.swapRectangularCornersLeftRight(corners.TopLeft | corners.BottomRight), corners.TopRight | corners.BottomLeft);
            for (let mask = 0; mask < 16; ++mask)
                compare(DrawUtils.swapRectangularCornersLeftRight(DrawUtils.swapRectangularCornersLeftRight(mask)), mask);
        }

        function test_checkerBoard() {
            const context = root.recorder();
            DrawUtils.drawCheckerBoard(context, 25, 15, 10, 4, "white", "grey");
            compare(context.calls.slice(0, 12), [
                "clearRect 0 0 25 15", "beginPath", "moveTo 4 0", "lineTo 21 0", "quadraticCurveTo 25 0 25 4", "lineTo 25 11", "quadraticCurveTo 25 15 21 15",
                "lineTo 4 15", "quadraticCurveTo 0 15 0 11", "lineTo 0 4", "quadraticCurveTo 0 0 4 0", "closePath"
            ]);
            compare(context.calls[12], "clip");
            compare(context.calls.slice(13), [
                "fillStyle=white", "fillRect 0 0 10 10", "fillStyle=grey", "fillRect 10 0 10 10", "fillStyle=white", "fillRect 20 0 10 10",
                "fillStyle=grey", "fillRect 0 10 10 10", "fillStyle=white", "fillRect 10 10 10 10", "fillStyle=grey", "fillRect 20 10 10 10"
            ]);
        }
    }

    TextEdit {
        id: linkEdit

        readonly property string target: "https://example.org/a"

        // Narrow enough for the link to run over three lines at least.
        width: 120
        font.pixelSize: 16
        wrapMode: TextEdit.Wrap
        textFormat: TextEdit.RichText
        text: "Before it <a href='%1'>a link of rather many words that wraps over lines</a> and after it <a href='x'>other</a>".arg(target)
    }

    TextEdit {
        id: lastLinkEdit

        y: 200
        width: 300
        font.pixelSize: 16
        textFormat: TextEdit.RichText
        text: "see <a href='x'>this</a>"
    }

    TestCase {
        name: "DataUtils"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function test_numDigits() {
            const digits = [[0, 1], [9, 1], [10, 2], [999, 3], [1000, 4], [1000000, 7], [-12345, 5], [2147483647, 10], [-2147483648, 10]];
            for (const [number, count] of digits)
                compare(DataUtils.numDigits(number), count, number);
        }

        function test_timeElapsed_data() {
            return [
                { tag: "a day is dropped", from: 0, to: 90061000, parts: [1, 1, 1] },
                { tag: "25 hours", from: 0, to: 25 * 3600 * 1000, parts: [1, 0, 0] },
                { tag: "backwards", from: 59999, to: 0, parts: [0, 0, 59] },
                { tag: "just under a day", from: 1000, to: 86400999, parts: [23, 59, 59] },
                { tag: "nothing", from: 7, to: 7, parts: [0, 0, 0] }
            ];
        }

        function test_timeElapsed(data) {
            const span = DataUtils.timeElapsedBetween(data.from, data.to);
            compare([span.hours, span.minutes, span.seconds], data.parts);
        }

        function test_numbers() {
            verify(DataUtils.isValidNumber(-0.5));
            for (const value of [NaN, "1", null, undefined, {}])
                verify(!DataUtils.isValidNumber(value), String(value));

            verify(DataUtils.areNumbersEqual(0.1 + 0.2, 0.3));
            verify(!DataUtils.areNumbersEqual(1, 1.1));
            verify(DataUtils.areNumbersEqual(1, 1.1, 0.2));
            verify(!DataUtils.isNumberGreaterThan(0.1 + 0.2, 0.3));
            verify(DataUtils.isNumberGreaterThan(2, 1));
            verify(DataUtils.isNumberEqualOrGreaterThan(0.3, 0.1 + 0.2));
            verify(!DataUtils.isNumberEqualOrGreaterThan(1, 2));
            verify(!DataUtils.isNumberLessThan(0.3, 0.1 + 0.2));
            verify(DataUtils.isNumberLessThan(1, 2));
            verify(DataUtils.isNumberEqualOrLessThan(1, 1));
            verify(!DataUtils.isNumberEqualOrLessThan(2, 1));
        }

        function test_rectangles() {
            const rect = Qt.rect(10, 20, 30, 40);
            compare(DataUtils.rectCenter(rect), Qt.point(25, 40));
            compare(DataUtils.rectLeftCenter(rect), Qt.point(10, 40));
            compare(DataUtils.rectRightCenter(rect), Qt.point(40, 40));
            compare(DataUtils.rectTopLeft(rect), Qt.point(10, 20));
            compare(DataUtils.rectUnited(rect, Qt.rect(-5, 30, 10, 100)), Qt.rect(-5, 20, 45, 110));
            compare(DataUtils.rectUnited(rect, Qt.rect(15, 25, 1, 1)), rect);
        }

        // Every position at which the link is found, by asking the text edit point by point.
        function linkedArea(edit: var, link: string): var {
            const area = { left: Infinity, right: 0, top: Infinity, bottom: 0, points: [] };
            for (let y = 0; y < edit.height; y += 2) {
                for (let x = 0; x < edit.width; x += 2) {
                    if (edit.linkAt(x, y) !== link)
                        continue;
                    area.points.push(Qt.point(x, y));
                    area.left = Math.min(area.left, x);
                    area.right = Math.max(area.right, x);
                    area.top = Math.min(area.top, y);
                    area.bottom = Math.max(area.bottom, y);
                }
            }
            return area;
        }

        function test_wrappedLink() {
            const area = linkedArea(linkEdit, linkEdit.target);
            const lineHeight = linkEdit.positionToRectangle(0).height;
            verify(area.bottom - area.top > 2 * lineHeight, "the link should wrap over three lines");

            // Wherever the mouse is on the link, the box holds the whole of it.
            for (const point of [area.points[0], area.points[Math.floor(area.points.length / 2)], area.points[area.points.length - 1]]) {
                const box = DataUtils.hyperlinkBoundingRect(linkEdit, point.x, point.y);
                verify(box.x <= area.left && box.x + box.width >= area.right, "%1 from %2".arg(box).arg(point));
                verify(box.y <= area.top + 2 && box.y + box.height >= area.bottom, "%1 from %2".arg(box).arg(point));
                // A cursor past the last blank of a line may itself stand out by its width.
                const edge = box.x + box.width - linkEdit.width;
                verify(edge >= 0 && edge <= linkEdit.cursorRectangle.width, "a wrapped line counts up to the right edge");
                verify(box.height < linkEdit.height);
            }
        }

        function test_linkAtTheEnd() {
            const area = linkedArea(lastLinkEdit, "x");
            const box = DataUtils.hyperlinkBoundingRect(lastLinkEdit, area.left + 2, area.top + 2);
            const end = lastLinkEdit.positionToRectangle(lastLinkEdit.length);
            compare(box.x, lastLinkEdit.positionToRectangle("see ".length).x);
            compare(box.x + box.width, end.x + end.width);
            compare(box.height, end.height);
        }

        function test_noLink() {
            compare(DataUtils.hyperlinkBoundingRect(linkEdit, 2, 2), null);
        }
    }

    Item {
        x: 7
        y: 11

        Rectangle {
            id: laidOut

            anchors {
                top: parent.top
                topMargin: 5
                bottomMargin: 3
            }
            x: 2
            width: 20
            height: 30
            implicitHeight: 17
        }
    }

    TestCase {
        name: "LayoutUtils"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function test_geometry() {
            compare(LayoutUtils.bottomY(laidOut), 5 + 17 + 5 + 3);
            const origin = root.mapToGlobal(0, 0);
            compare(LayoutUtils.globalRect(laidOut), Qt.rect(origin.x + 9, origin.y + 16, 20, 30));
        }
    }
}
