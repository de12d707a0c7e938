import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

ToolkitTestCase {
    id: testCase

    name: "Theme"

    // Objects, which can be asked for their properties as the singletons' names cannot.
    readonly property QtObject fonts: FontConstants
    readonly property QtObject accessibleKeys: AccessibleConstants

    // An interactive thing whose state labels and backgrounds follow.
    Item {
        id: target

        property bool hovered: false
        property bool pressed: false
        property bool checked: false
    }
    Rectangle { id: card; y: 200; z: 3; width: 100; height: 50; radius: 8 }
    FontMetrics { id: fontMetrics; font: FontConstants.bannerPrimary }

    function test_fonts() {
        compare(FontConstants.lineHeight(FontConstants.bannerPrimary), fontMetrics.height);
        const presets = Object.keys(fonts).filter(name => fonts[name].pixelSize);
        verify(presets.includes("bodySecondaryBold"));
        const sizes = presets.map(preset => fonts[preset].pixelSize);
        App.textScale = 1.5;
        for (const [i, preset] of presets.entries()) {
            const font = fonts[preset];
            compare(font.pixelSize, sizes[i] * 1.5, preset);
            // What the names promise.
            compare([font.italic, font.underline], [preset.endsWith("Italic"), preset.startsWith("hyperlink")], preset);
            verify(font.bold || !preset.endsWith("Bold"), preset);
        }
    }

    // Decided by the widths of the two alphabets.
    function test_familyOfFace() {
        for (const [upper, lower, family] of [[105, 100, "Segoe UI"], [104.9, 100, "Segoe UI Variable"], [100, 0, "Segoe UI Variable"]])
            compare(FontConstants.priv.familyOfFace(upper, lower), family, "%1 %2".arg(upper).arg(lower));
    }

    function test_accessibleKeysEqualTheirNames() {
        const keys = Object.keys(accessibleKeys).filter(key => /([nN]ame|[dD]escription)$/.test(key) && key !== "objectName");
        verify(keys.includes("leftItemDescription"));
        compare(keys.map(key => accessibleKeys[key]), keys);
    }

    // What each primitive paints with which set, to start with, and what it paints without one.
    function test_colors_data() {
        const round = "KGradientRectangleRoundCorner";
        const stop = "gradient.stops.%1.color";
        const start = "theme-gradient-secondary-0-background";
        const end = "theme-gradient-secondary-1-background";
        return table(["tag", "type", "color", "set", "name", "properties"], [
            ["rectangle", "KRectangle", "color", "backgroundColorSet", "background-primary"],
            ["frame", "KFrame", "color", "backgroundColorSet", "background-primary"],
            ["border", "KFrame", "border.color", "borderColorSet", "wx-default-border"],
            ["pane", "KPane", "background.color", "background.backgroundColorSet", "background-primary"],
            ["separator", "KSeparator", "color", "backgroundColorSet", "legacy-separator-primary"],
            ["text", "KText", "color", "textColorSet", "text-primary"],
            ["icon", "KSvgIcon", "sourceColor", "svgColorSet", "text-primary", { svgColorSetName: "text-primary" }],
            ["gradient's start", "KGradientRectangle", "children.0." + stop.arg(0), "gradientStartColourSet", start],
            ["gradient's end", "KGradientRectangle", "children.0." + stop.arg(1), "gradientEndColourSet", end],
            ["corner", round, "children.0.color", "gradientPrimary0BackgroundColorSet", "theme-gradient-primary-0-background"],
            ["corner's start", round, "children.0.children.0.children.0." + stop.arg(0), "gradientStartColourSet", start],
            ["corner's end", round, "children.0.children.0.children.0." + stop.arg(1), "gradientEndColourSet", end]
        ]);
    }

    function test_colors(data) {
        const item = make(data.type, data.properties);
        const paints = (color, message) => compare(valueAt(item, data.color), color, message);
        for (const theme of themes) {
            ThemeManager.theme = theme;
            compare(valueAt(item, data.set + ".name"), data.name);
            paints(App.getColorSet(data.name, theme).normal, theme);
        }

        item.themeType = "dark";
        ThemeManager.theme = "light";
        paints(App.getColorSet(data.name, "dark").normal, "a theme type of its own");
        item.themeType = "global";

        const nameProperty = data.set.split(".").pop() + "Name";
        item[nameProperty] = "button-primary-background";
        item.controlsTarget = target;
        const set = App.getColorSet("button-primary-background");
        for (const [property, value, state] of [["checked", true, "checked"], ["hovered", true, "hovered"], ["pressed", true, "pressed"], ["enabled", false, "disabled"]]) {
            target[property] = value;
            paints(set[state], state);
        }
        Object.assign(target, { checked: false, hovered: false, pressed: false, enabled: true });
        paints(set.normal, "at rest again");

        const unknown = "nowhere-%1".arg(data.tag);
        ignoreWarning(new RegExp(unknown));
        item[nameProperty] = unknown;
        paints(Qt.color("transparent"), "an unknown set");
        item[nameProperty] = "";
        paints(Qt.color(data.type === "KSvgIcon" ? "black" : "transparent"), "without a set");
    }

    // With real sets: their colours are values, and equal ones must count as equal.
    function test_focusCountsOnlyWhereItDiffers() {
        const focused = { enabled: true, activeFocus: true, checked: true };
        for (const name of ThemeManager.colorSetNames()) {
            const set = App.getColorSet(name);
            const expected = Qt.colorEqual(set.focused, set.normal) ? set.checked : set.focused;
            verify(Qt.colorEqual(ThemeUtils.getColor(focused, set), expected), name);
        }
    }

    // A root's properties are in the context of all that it creates.
    function test_themeModeOfTheContext() {
        const types = ["KRectangle", "KText", "KPane", "KSvgIcon", "KGradientRectangle", "KGradientRectangleRoundCorner", "KBasicFocusItem"];
        const root = "import QtQuick; import UIToolkitQml 1.0; Item { property string themeMode: 'dark'; %1 }".arg(types.map(type => type + " {}").join(" "));
        const surface = createTemporaryQmlObject(root, testCase);
        compare(Array.from(surface.children).map(child => child.themeType), Array(types.length).fill("dark"));
        compare(surface.children[0].color, App.getColorSet("background-primary", "dark").normal);
    }

    function test_borders() {
        const frame = make("KFrame", { borderWidth: 5 });
        compare(frame.border.width, 5);
        frame.borderColorSetName = "";
        compare(frame.border.width, 0, "none without a set");

        const pane = make("KPane", { width: 60, height: 40, borderWidth: 2 });
        compare(pane.background.border.width, 0);
        Object.assign(pane, { radius: 9, borderColorSetName: "combobox-border", themeType: "dark" });
        compareProperties(pane.background, { width: 60, height: 40, radius: 9, "border.width": 2, "border.color": App.getColorSet("combobox-border", "dark").normal });
    }

    function test_shapesFillTheirPlace() {
        compareProperties(make("KSeparator"), { width: testCase.width, height: 1 });
        const gradient = make("KGradientRectangle", { radius: 7, width: 40, height: 30, gradientOrientation: Gradient.Horizontal }).children[0];
        compareProperties(gradient, { width: 40, height: 30, radius: 7, "gradient.orientation": Gradient.Horizontal });
        compareProperties(gradient.gradient.stops, { "0.position": 0, "1.position": 1 });
    }

    // Seen from the pixels: round at the top left, where the other set shows, square and cut off elsewhere.
    function test_roundCorner() {
        const sets = { gradientPrimary0BackgroundColorSetName: "background-primary", gradientStartColourSetName: "text-primary", gradientEndColourSetName: "text-primary" };
        make("KGradientRectangleRoundCorner", Object.assign({ width: 60, height: 40 }, sets));
        const front = App.getColorSet("text-primary").normal;
        const image = grabImage(testCase);
        const outside = image.pixel(399, 0);
        verify(!Qt.colorEqual(outside, front));
        for (const [x, y, color] of [
            [1, 1, App.getColorSet("background-primary").normal], [1, 38, front], [58, 1, front], [58, 38, front], [20, 20, front],
            [62, 20, outside], [20, 42, outside]
        ])
            compare(image.pixel(x, y), color, "%1 %2".arg(x).arg(y));
    }

    function test_shadows() {
        const flat = make("KDropShadowRect", {}, card);
        compareProperties(flat, { width: 100, height: 50, offset: 1, x: 1, y: 1, radius: 10, z: 2, opacity: 0.1, color: Qt.color("black") });
        card.height = 200;
        compareProperties(flat, { offset: 2, height: 200, x: 2, y: 2 });
        compare(make("KDropShadowRect", {}, target).radius, 2, "a parent without a radius has square corners");

        const shadow = make("KDropShadow", {}, card);
        compareProperties(shadow, { source: card, width: 100, height: 200, samples: 5 });
        shadow.radius = 4;
        compare(shadow.samples, 9);
    }
}
