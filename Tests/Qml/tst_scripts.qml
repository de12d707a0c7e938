import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

ToolkitTestCase {
    id: testCase

    name: "Scripts"

    // Narrow enough for the link to run over three lines at least.
    TextEdit {
        id: linkEdit

        width: 120
        font.pixelSize: 16
        wrapMode: TextEdit.Wrap
        textFormat: TextEdit.RichText
        text: "Before it <a href='wrapped'>a link of rather many words that wraps over lines</a> and after it&nbsp;<a href='x'>other</a>"
    }

    // A set with a colour of its own for each state.
    readonly property var colorSet: ["normal", "hovered", "pressed", "disabled", "focused", "checked"]
        .reduce((set, state) => Object.assign(set, { [state]: state }), { isValid: true, name: "some-set" })

    // An enabled item with those flags, or without those marked by "!".
    function item(flags: string): var {
        const result = { enabled: true };
        for (const flag of flags.split(" "))
            result[flag.replace("!", "")] = !flag.startsWith("!");
        return result;
    }

    function test_stateRule_data() {
        const sameFocus = { focused: "normal" };
        return table(["tag", "state", "color", "field", "changes"], [
            ["at rest", "", "normal", "normal"],
            ["checked", "checked", "checked", "checked"],
            ["focus before checked", "activeFocus checked", "focused", "focused"],
            ["focus like normal lets checked through", "activeFocus checked", "checked", "checked", sameFocus],
            ["focus like normal", "activeFocus", "normal", "normal", sameFocus],
            ["hover before focus", "hovered activeFocus checked", "hovered", "hovered"],
            ["press before hover, no press in fields", "pressed hovered activeFocus", "pressed", "hovered"],
            ["pressed alone", "pressed", "pressed", "normal"],
            ["disabled before all", "!enabled pressed hovered activeFocus checked", "disabled", "disabled"],
            ["read-only before all in fields", "readOnly !enabled hovered activeFocus", "disabled", "normal"]
        ]);
    }

    function test_stateRule(data) {
        const set = Object.assign({}, colorSet, data.changes);
        compare(ThemeUtils.getColor(item(data.state), set), data.color);
        compare(ThemeUtils.getTextFieldColor(item(data.state), set), data.field);
    }

    function test_badArguments() {
        compare(ThemeUtils.getColor(item("!enabled"), Object.assign({}, colorSet, { isValid: false })), "transparent");
        compare(ThemeUtils.getColor(item(""), undefined), "transparent");
        compare(ThemeUtils.getColor(null, colorSet), "normal");
        let error = null;
        try {
            ThemeUtils.getTextFieldColor(null, null);
        } catch (e) {
            error = e;
        }
        verify(error instanceof TypeError, "nothing at all is an error of the script");
    }

    // Stands in for a 2D context and notes what is done to it: lengths to a tenth of a milli-pixel, angles by name.
    function recorder(): var {
        const calls = [];
        const round = value => Math.round(value * 10000) / 10000;
        const angle = value => ["right", "down", "left", "up"][value / (Math.PI / 2)];
        const context = { calls: calls };
        for (const name of ["beginPath", "closePath", "moveTo", "lineTo", "quadraticCurveTo", "stroke", "clip", "clearRect", "fillRect"])
            context[name] = (...args) => void calls.push([name, ...args.map(round)].join(" "));
        context.arc = (x, y, radius, from, to, isCounterclockwise) => {
            calls.push(["arc", round(x), round(y), round(radius), angle(from), angle(to)].join(" ") + (isCounterclockwise ? " backwards" : ""));
        };
        for (const name of ["strokeStyle", "lineWidth", "fillStyle"])
            Object.defineProperty(context, name, { set: value => void calls.push(name + "=" + value) });
        return context;
    }

    function test_outlines_data() {
        const [pill, rectangle, mixed] = ["drawRoundedSidesOutline", "drawRoundedCornerRectangleOutline", "drawRectangularAndRoundCornerOutline"];
        // Arguments: height, width, margin, line width, offset; then radius and square corners.
        return table(["tag", "draw", "args", "corners", "path"], [
            // An item of 100 x 20: centre line 5 - 2 - 1 = 2 from the edge, arc radius 10 + 2 + 1.
            ["pill", pill, [30, 110, 5, 2, 2], [],
                "moveTo 15 2, lineTo 95 2, arc 95 15 13 up down, lineTo 15 28, arc 15 15 13 down up"],
            ["as high as wide is still a pill", pill, [20, 20, 5, 2, 2], [],
                "moveTo 10 2, lineTo 10 2, arc 10 10 8 up down, lineTo 10 18, arc 10 10 8 down up"],
            ["upright pill is a rectangle of radius 4", pill, [60, 20, 5, 2, 4], [],
                "moveTo 4 0, lineTo 16 0, arc 16 4 4 up right, lineTo 20 56, arc 16 56 4 right down, lineTo 4 60, arc 4 56 4 down left, lineTo 0 4, arc 4 4 4 left up"],
            // A real canvas raises an error at a negative radius.
            ["flat pill with an inner line", pill, [4, 60, 0, 2, -5], [],
                "moveTo 2 4, lineTo 58 4, arc 58 2 0 up down, lineTo 2 0, arc 2 2 0 down up"],
            ["rectangle", rectangle, [40, 60, 5, 2, 0], [8],
                "moveTo 12 4, lineTo 48 4, arc 48 12 8 up right, lineTo 56 28, arc 48 28 8 right down, lineTo 12 36, arc 12 28 8 down left, lineTo 4 12, arc 12 12 8 left up"],
            ["negative radius is none", rectangle, [40, 60, 5, 2, 0], [-3],
                "moveTo 4 4, lineTo 56 4, arc 56 4 0 up right, lineTo 56 36, arc 56 36 0 right down, lineTo 4 36, arc 4 36 0 down left, lineTo 4 4, arc 4 4 0 left up"],
            // The centre line lies 2 from the edge, so that the radius of 8 becomes 6.
            ["none square", mixed, [40, 60, 5, 2, 2], [8, 0],
                "moveTo 8 2, lineTo 52 2, arc 52 8 6 up right, lineTo 58 32, arc 52 32 6 right down, lineTo 8 38, arc 8 32 6 down left, lineTo 2 8, arc 8 8 6 left up"],
            ["left ones square", mixed, [40, 60, 5, 2, 2], [8, 1 | 4],
                "moveTo 2 2, lineTo 52 2, arc 52 8 6 up right, lineTo 58 32, arc 52 32 6 right down, lineTo 2 38, lineTo 2 2"],
            ["right ones square", mixed, [40, 60, 5, 2, 2], [8, 2 | 8],
                "moveTo 8 2, lineTo 58 2, lineTo 58 38, lineTo 8 38, arc 8 32 6 down left, lineTo 2 8, arc 8 8 6 left up"],
            ["radius below the offset is none", mixed, [40, 60, 5, 2, 2], [1, 2 | 4 | 8],
                "moveTo 2 2, lineTo 58 2, lineTo 58 38, lineTo 2 38, lineTo 2 2, arc 2 2 0 left up"]
        ]);
    }

    function test_outlines(data) {
        const context = recorder();
        DrawUtils[data.draw](context, ...data.args, "red", ...data.corners);
        compare(context.calls, ["beginPath", "strokeStyle=red", ...data.path.split(", "), "lineWidth=2", "stroke"]);
    }

    function test_swapCorners() {
        const swapped = [0, 2, 1, 3, 8, 10, 9, 11, 4, 6, 5, 7, 12, 14, 13, 15];
        swapped.forEach((result, corners) => compare(DrawUtils.swapRectangularCornersLeftRight(corners), result));
    }

    function test_checkerBoard() {
        const context = recorder();
        DrawUtils.drawCheckerBoard(context, 25, 15, 10, 4, "white", "grey");
        compare(context.calls, [
            "clearRect 0 0 25 15", "beginPath", "moveTo 4 0", "lineTo 21 0", "quadraticCurveTo 25 0 25 4", "lineTo 25 11", "quadraticCurveTo 25 15 21 15",
            "lineTo 4 15", "quadraticCurveTo 0 15 0 11", "lineTo 0 4", "quadraticCurveTo 0 0 4 0", "closePath", "clip",
            "fillStyle=white", "fillRect 0 0 10 10", "fillStyle=grey", "fillRect 10 0 10 10", "fillStyle=white", "fillRect 20 0 10 10",
            "fillStyle=grey", "fillRect 0 10 10 10", "fillStyle=white", "fillRect 10 10 10 10", "fillStyle=grey", "fillRect 20 10 10 10"
        ]);
    }

    function test_numDigits() {
        for (const [number, count] of [[0, 1], [9, 1], [10, 2], [999, 3], [1000, 4], [-12345, 5], [2147483647, 10], [-2147483648, 10]])
            compare(DataUtils.numDigits(number), count, number);
    }

    function test_timeElapsed() {
        for (const [why, from, to, hours, minutes, seconds] of [
            ["a day is dropped", 0, 90061000, 1, 1, 1], ["backwards", 59999, 0, 0, 0, 59],
            ["just under a day", 1000, 86400999, 23, 59, 59], ["nothing", 7, 7, 0, 0, 0]
        ])
            compare(DataUtils.timeElapsedBetween(from, to), { hours, minutes, seconds }, why);
    }

    function test_comparisons() {
        verify(DataUtils.isValidNumber(-0.5));
        for (const value of [NaN, "1", null, undefined, {}])
            verify(!DataUtils.isValidNumber(value), String(value));

        const comparisons = ["areNumbersEqual", "isNumberGreaterThan", "isNumberEqualOrGreaterThan", "isNumberLessThan", "isNumberEqualOrLessThan"];
        for (const [a, b, results] of [
            [0.1 + 0.2, 0.3, [true, false, true, false, true]], [0.3, 0.1 + 0.2, [true, false, true, false, true]],
            [2, 1, [false, true, true, false, false]], [1, 2, [false, false, false, true, true]]
        ])
            compare(comparisons.map(name => DataUtils[name](a, b)), results, "%1 %2".arg(a).arg(b));
        compare([DataUtils.areNumbersEqual(1, 1.1, 0.2), DataUtils.areNumbersEqual(1, 1.3, 0.2)], [true, false]);
    }

    function test_rectangles() {
        const rect = Qt.rect(10, 20, 30, 40);
        compare(DataUtils.rectCenter(rect), Qt.point(25, 40));
        compare(DataUtils.rectLeftCenter(rect), Qt.point(10, 40));
        compare(DataUtils.rectRightCenter(rect), Qt.point(40, 40));
        compare(DataUtils.rectTopLeft(rect), Qt.point(10, 20));
        compare(DataUtils.rectUnited(rect, Qt.rect(-5, 30, 10, 100)), Qt.rect(-5, 20, 45, 110));
        compare(DataUtils.rectUnited(Qt.rect(15, 25, 1, 1), rect), rect);
    }

    // Every position at which the link is found, by asking the text edit point by point, line by line.
    function pointsOf(edit: var, link: string): var {
        const points = [];
        for (let y = 0; y < edit.height; y += 2) {
            for (let x = 0; x < edit.width; x += 2) {
                if (edit.linkAt(x, y) === link)
                    points.push(Qt.point(x, y));
            }
        }
        return points;
    }

    function test_wrappedLink() {
        const points = pointsOf(linkEdit, "wrapped");
        const [top, bottom] = [points[0].y, points[points.length - 1].y];
        verify(bottom - top > 2 * linkEdit.positionToRectangle(0).height, "the link should wrap over three lines");

        // Wherever the mouse is on the link, the box holds the whole of it.
        for (const point of [points[0], points[Math.floor(points.length / 2)], points[points.length - 1]]) {
            const box = DataUtils.hyperlinkBoundingRect(linkEdit, point.x, point.y);
            const message = "%1 from %2".arg(box).arg(point);
            verify(points.every(({ x }) => x >= box.x && x <= box.x + box.width), message);
            verify(box.y <= top + 2 && box.y + box.height >= bottom && box.height < linkEdit.height, message);
            // A cursor past the last blank of a line may itself stand out by its width.
            const edge = box.x + box.width - linkEdit.width;
            verify(edge >= 0 && edge <= linkEdit.cursorRectangle.width, "a wrapped line counts up to the right edge");
        }
    }

    function test_linkAtTheEnd() {
        const point = pointsOf(linkEdit, "x")[0];
        const start = linkEdit.positionToRectangle(linkEdit.length - "other".length);
        const end = linkEdit.positionToRectangle(linkEdit.length);
        compare(DataUtils.hyperlinkBoundingRect(linkEdit, point.x + 2, point.y + 2), Qt.rect(start.x, end.y, end.x + end.width - start.x, end.height));
        compare(DataUtils.hyperlinkBoundingRect(linkEdit, 2, 2), null, "no link there");
    }

    // The blank at the end of a line may be found to be no part of the link.
    function test_wrapWithoutLinkAtTheLineEnd() {
        const rects = [Qt.rect(80, 0, 1, 10), Qt.rect(0, 10, 1, 10), Qt.rect(8, 10, 1, 10)];
        const edit = { width: 100, length: 2, linkAt: (x, y) => y >= 10 ? "link" : "", positionAt: () => 1, positionToRectangle: position => rects[position] };
        compare(DataUtils.hyperlinkBoundingRect(edit, 2, 12), Qt.rect(0, 0, 100, 20));
    }

    function test_geometry() {
        const place = make("KItem", { x: 7, y: 11 });
        const item = make("KRectangle", { x: 2, y: 5, width: 20, height: 30, implicitHeight: 17, "anchors.topMargin": 5, "anchors.bottomMargin": 3 }, place);
        compare(LayoutUtils.bottomY(item), 5 + 17 + 5 + 3);
        const origin = testCase.mapToGlobal(0, 0);
        compare(LayoutUtils.globalRect(item), Qt.rect(origin.x + 9, origin.y + 16, 20, 30));
    }
}
