import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 400
    height: 400

    // An interactive thing whose state labels and backgrounds follow.
    component Target: Item {
        property bool hovered: false
        property bool pressed: false
        property bool checked: false
    }

    // Its root's properties are in the context of all that it creates.
    component DarkSurface: Item {
        property string themeMode: "dark"

        KRectangle {}
        KText {}
        KPane {}
        KSvgIcon {}
        KGradientRectangle {}
        KGradientRectangleRoundCorner {}
        KBasicFocusItem {}
    }

    Target {
        id: target
    }

    DarkSurface {
        id: darkSurface
    }

    Rectangle {
        id: card

        y: 200
        width: 100
        height: 50
        radius: 8
        z: 3
    }

    FontMetrics {
        id: fontMetrics

        font: FontConstants.bannerPrimary
    }

    ToolkitTestCase {
        name: "Constants"

        readonly property var presetsBySize: ({
                12: "tagLabelSecondary tagLabelTertiary highlightCompact",
                14: "bodyTertiary bodySecondary bodySecondaryBold bodySecondarySemibold bodySecondaryItalic subheaderSecondary hyperlinkSecondary bodyLight highlightSecondary",
                16: "codeBlocks emoji bodyPrimary bodyPrimaryBold bodyPrimarySemibold header subheaderPrimary hyperlinkPrimary hyperlinkPrimaryBold",
                18: "spaceHeader spaceHeaderBold",
                20: "title",
                26: "bannerPrimary bannerSecondary bannerTertiary"
            })
        readonly property var presetsByWeight: ({
                [Font.Light]: "bodyLight",
                [Font.Medium]: "bodySecondarySemibold bodyPrimarySemibold",
                [Font.DemiBold]: "subheaderPrimary subheaderSecondary title bannerPrimary tagLabelSecondary",
                [Font.Bold]: "bodySecondaryBold bodyPrimaryBold spaceHeaderBold header bannerTertiary hyperlinkPrimaryBold highlightSecondary highlightCompact"
            })

        function test_fontPresets() {
            const families = { codeBlocks: "Consolas", emoji: "Segoe UI Emoji" };
            for (const size in presetsBySize) {
                for (const preset of presetsBySize[size].split(" ")) {
                    const weight = Object.keys(presetsByWeight).find(key => presetsByWeight[key].split(" ").includes(preset));
                    const font = FontConstants[preset];
                    const actual = [font.family, font.pixelSize, font.weight, font.italic, font.underline];
                    const expected = [families[preset] ?? "Segoe UI", Number(size), Number(weight ?? Font.Normal), preset.endsWith("Italic"), preset.startsWith("hyperlink")];
                    compare(actual, expected, preset);
                }
            }
        }

        function test_fontSizes() {
            compareProperties(FontConstants, { extraLarge: 40, large: 26, medium: 20, mediumSmall: 16, small: 14, extraSmall: 12 });
            compareProperties(FontConstants, { regularWeight: Font.Normal, semiboldWeight: Font.DemiBold, boldWeight: Font.Bold });
            compare(FontConstants.lineHeight(FontConstants.bannerPrimary), fontMetrics.height);
            App.textScale = 1.5;
            compareProperties(FontConstants, { small: 21, "bodySecondary.pixelSize": 21, "spaceHeader.pixelSize": 27 });
        }

        // Decided by the widths of the two alphabets.
        function test_familyOfFace() {
            for (const [upper, lower, family] of [[105, 100, "Segoe UI"], [104.9, 100, "Segoe UI Variable"], [100, 0, "Segoe UI Variable"]])
                compare(FontConstants.priv.familyOfFace(upper, lower), family, "%1 %2".arg(upper).arg(lower));
        }

        function test_accessibleKeysEqualTheirNames() {
            for (const item of ["", "popup", "leftItem", "middleItem", "rightItem"]) {
                for (const key of ["Name", "Description"]) {
                    const name = item + (item.length > 0 ? key : key.toLowerCase());
                    if (name !== "popupDescription")
                        compare(AccessibleConstants[name], name);
                }
            }
        }
    }

    ToolkitTestCase {
        name: "Colors"

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
            compareProperties(item, { themeType: "global", controlsTarget: item });
            for (const theme of themes) {
                ThemeManager.theme = theme;
                compareProperties(item, { [data.set + ".name"]: data.name, [data.set + ".isValid"]: true, [data.color]: App.getColorSet(data.name, theme).normal });
            }

            item.themeType = "dark";
            ThemeManager.theme = "light";
            compare(valueAt(item, data.color), App.getColorSet(data.name, "dark").normal, "a theme type of its own");
            item.themeType = "global";

            const nameProperty = data.set.split(".").pop() + "Name";
            item[nameProperty] = "button-primary-background";
            item.controlsTarget = target;
            const set = App.getColorSet("button-primary-background");
            for (const [property, value, state] of [["checked", true, "checked"], ["hovered", true, "hovered"], ["pressed", true, "pressed"], ["enabled", false, "disabled"]]) {
                target[property] = value;
                compare(valueAt(item, data.color), set[state], state);
            }
            Object.assign(target, { checked: false, hovered: false, pressed: false, enabled: true });
            compare(valueAt(item, data.color), set.normal);

            const unknown = "nowhere-%1".arg(data.tag);
            ignoreWarning(new RegExp(unknown));
            item[nameProperty] = unknown;
            verify(Qt.colorEqual(valueAt(item, data.color), "transparent"), "an unknown set paints nothing");
            item[nameProperty] = "";
            verify(Qt.colorEqual(valueAt(item, data.color), data.type === "KSvgIcon" ? "black" : "transparent"), "without a set");
        }

        // With real sets: their colours are values, and equal ones must count as equal.
        function test_focusCountsOnlyWhereItDiffers() {
            const focused = { enabled: true, activeFocus: true, checked: true };
            for (const name of ThemeManager.colorSetNames()) {
                const set = App.getColorSet(name);
                const differs = !Qt.colorEqual(set.focused, set.normal);
                const expected = differs ? set.focused : set.checked;
                verify(Qt.colorEqual(ThemeUtils.getColor(focused, set), expected), name);
            }
        }

        function test_themeModeOfTheContext() {
            compare(darkSurface.children.length, 7);
            for (const child of Array.from(darkSurface.children))
                compare(child.themeType, "dark", String(child));
            compare(darkSurface.children[0].color, App.getColorSet("background-primary", "dark").normal);
        }
    }

    ToolkitTestCase {
        name: "Shapes"

        function test_frameHasNoBorderWithoutASet() {
            const frame = make("KFrame");
            compare(frame.border.width, 1);
            frame.borderWidth = 5;
            compare(frame.border.width, 5);
            frame.borderColorSetName = "";
            compare(frame.border.width, 0);
        }

        function test_pane() {
            const pane = make("KPane", { width: 60, height: 40 });
            compareProperties(pane, { borderColorSetName: "", borderWidth: 0, "background.border.width": 0, "background.width": 60, "background.height": 40 });
            Object.assign(pane, { radius: 9, borderWidth: 2, borderColorSetName: "combobox-border", themeType: "dark" });
            compareProperties(pane.background, { radius: 9, "border.width": 2, "border.color": App.getColorSet("combobox-border", "dark").normal });
        }

        function test_separator() {
            compareProperties(make("KSeparator"), { width: root.width, height: 1 });
        }

        function test_gradient() {
            const gradient = make("KGradientRectangle", { radius: 7, width: 40, height: 30 }).children[0];
            compareProperties(gradient, { width: 40, height: 30, radius: 7, "gradient.orientation": Gradient.Vertical, "gradient.stops.length": 2 });
            compareProperties(gradient.gradient.stops, { "0.position": 0, "1.position": 1 });
            const across = make("KGradientRectangle", { gradientOrientation: Gradient.Horizontal });
            compare(across.children[0].gradient.orientation, Gradient.Horizontal);
        }

        // Seen from the pixels: round at the top left, where the other set shows, square and cut off elsewhere.
        function test_roundCorner() {
            const sets = { gradientPrimary0BackgroundColorSetName: "background-primary", gradientStartColourSetName: "text-primary", gradientEndColourSetName: "text-primary" };
            const item = make("KGradientRectangleRoundCorner", Object.assign({ width: 60, height: 40 }, sets));
            compare(item.cornerRadius, 16);
            const front = App.getColorSet("text-primary").normal;
            const image = grabImage(root);
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
            compareProperties(shadow, { source: card, width: 100, height: 200, horizontalOffset: 2, verticalOffset: 2, radius: 2, samples: 5, color: Qt.color("#10000000") });
            shadow.radius = 4;
            compare(shadow.samples, 9);
        }
    }
}
