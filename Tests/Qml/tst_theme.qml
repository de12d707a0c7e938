import QtQuick
import QtTest
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
        property alias rectangle: darkRectangle
        property alias text: darkText
        property alias ring: darkRing

        KRectangle {
            id: darkRectangle
        }

        KText {
            id: darkText
        }

        KCustomFocusItem {
            id: darkRing
        }
    }

    component ThemedCase: TestCase {
        function init() {
            failOnWarning(/.?/);
            ThemeManager.theme = "light";
        }

        function cleanup() {
            ThemeManager.theme = "light";
            App.textScale = 1;
        }
    }

    ThemedCase {
        name: "FontConstants"

        // Size, and what differs from a plain font of the default family.
        function test_presets_data() {
            const rows = [
                ["codeBlocks", 16, { family: "Consolas" }],
                ["emoji", 16, { family: "Segoe UI Emoji" }],
                ["bodyTertiary", 14, {}],
                ["bodySecondary", 14, {}],
                ["bodySecondaryBold", 14, { weight: Font.Bold }],
                ["bodySecondarySemibold", 14, { weight: Font.Medium }],
                ["bodySecondaryItalic", 14, { italic: true }],
                ["bodyPrimary", 16, {}],
                ["bodyPrimaryBold", 16, { weight: Font.Bold }],
                ["bodyPrimarySemibold", 16, { weight: Font.Medium }],
                ["spaceHeader", 18, {}],
                ["spaceHeaderBold", 18, { weight: Font.Bold }],
                ["header", 16, { weight: Font.Bold }],
                ["subheaderPrimary", 16, { weight: Font.DemiBold }],
                ["subheaderSecondary", 14, { weight: Font.DemiBold }],
                ["title", 20, { weight: Font.DemiBold }],
                ["bannerPrimary", 26, { weight: Font.DemiBold }],
                ["bannerSecondary", 26, {}],
                ["bannerTertiary", 26, { weight: Font.Bold }],
                ["hyperlinkPrimary", 16, { underline: true }],
                ["hyperlinkPrimaryBold", 16, { weight: Font.Bold, underline: true }],
                ["hyperlinkSecondary", 14, { underline: true }],
                ["tagLabelSecondary", 12, { weight: Font.DemiBold }],
                ["tagLabelTertiary", 12, {}],
                ["bodyLight", 14, { weight: Font.Light }],
                ["highlightSecondary", 14, { weight: Font.Bold }],
                ["highlightCompact", 12, { weight: Font.Bold }]
            ];
            return rows.map(([name, size, differences]) => ({ tag: name, size: size, differences: differences }));
        }

        function test_presets(data) {
            const expected = Object.assign({ family: "Segoe UI", weight: Font.Normal, italic: false, underline: false }, data.differences);
            const font = FontConstants[data.tag];
            compare(font.pixelSize, data.size);
            for (const key in expected)
                compare(font[key], expected[key], key);
        }

        function test_constants() {
            const names = ["extraLarge", "large", "medium", "mediumSmall", "small", "extraSmall"];
            compare(names.map(name => FontConstants[name]), [40, 26, 20, 16, 14, 12]);
            compare([FontConstants.regularWeight, FontConstants.semiboldWeight, FontConstants.boldWeight], [Font.Normal, Font.DemiBold, Font.Bold]);
        }

        function test_textScale() {
            App.textScale = 1.5;
            compare(FontConstants.small, 21);
            compare(FontConstants.bodySecondary.pixelSize, 21);
            compare(FontConstants.spaceHeader.pixelSize, 27);
            App.textScale = 1;
            compare(FontConstants.bodySecondary.pixelSize, 14);
        }

        function test_familyOfFace_data() {
            return [
                { tag: "wide capitals", upper: 105, lower: 100, family: "Segoe UI" },
                { tag: "narrow capitals", upper: 104.9, lower: 100, family: "Segoe UI Variable" },
                { tag: "not measured", upper: 100, lower: 0, family: "Segoe UI Variable" }
            ];
        }

        function test_familyOfFace(data) {
            compare(FontConstants.priv.familyOfFace(data.upper, data.lower), data.family);
        }

        function test_lineHeight() {
            fontMetrics.font = FontConstants.bannerPrimary;
            compare(FontConstants.lineHeight(FontConstants.bannerPrimary), fontMetrics.height);
            verify(FontConstants.lineHeight(FontConstants.bodySecondary) < fontMetrics.height);
        }

        FontMetrics {
            id: fontMetrics
        }
    }

    ThemedCase {
        name: "AccessibleConstants"

        function test_valuesEqualNames() {
            const names = [
                "name", "description", "popupName", "leftItemName", "leftItemDescription", "middleItemName", "middleItemDescription", "rightItemName",
                "rightItemDescription"
            ];
            for (const name of names)
                compare(AccessibleConstants[name], name);
        }
    }

    Target {
        id: target
    }

    KRectangle {
        id: rectangle
    }

    KFrame {
        id: frame
    }

    KText {
        id: text

        text: "Text"
    }

    KGradientRectangle {
        id: gradient

        width: 40
        height: 40
    }

    KSvgIcon {
        id: icon

        svgName: "plus-bold"
        svgColorSetName: "text-primary"
    }

    DarkSurface {
        id: darkSurface
    }

    ThemedCase {
        name: "Colors"
        when: windowShown

        // What each primitive paints with which set, to start with.
        function test_defaults_data() {
            return [
                { tag: "rectangle", item: rectangle, color: "color", set: "backgroundColorSet", name: "background-primary" },
                { tag: "frame", item: frame, color: "color", set: "backgroundColorSet", name: "background-primary" },
                { tag: "border", item: frame, color: "border.color", set: "borderColorSet", name: "wx-default-border" },
                { tag: "text", item: text, color: "color", set: "textColorSet", name: "text-primary" },
                { tag: "icon", item: icon, color: "sourceColor", set: "svgColorSet", name: "text-primary" }
            ];
        }

        function painted(data: var): color {
            return data.color.split(".").reduce((value, key) => value[key], data.item);
        }

        function test_defaults(data) {
            compare(data.item.themeType, "global");
            compare(data.item.controlsTarget, data.item);
            for (const theme of ["light", "dark", "highContrast"]) {
                ThemeManager.theme = theme;
                compare(data.item[data.set].name, data.name);
                verify(data.item[data.set].isValid);
                compare(painted(data), App.getColorSet(data.name, theme).normal, theme);
            }

            data.item.themeType = "dark";
            ThemeManager.theme = "light";
            compare(painted(data), App.getColorSet(data.name, "dark").normal, "a theme type of its own");
            data.item.themeType = "global";

            data.item.controlsTarget = target;
            const property = data.set + "Name";
            data.item[property] = "button-primary-background";
            const set = App.getColorSet("button-primary-background");
            compare(painted(data), set.normal);
            target.hovered = true;
            compare(painted(data), set.hovered);
            target.pressed = true;
            compare(painted(data), set.pressed);
            target.enabled = false;
            compare(painted(data), set.disabled);
            target.enabled = true;
            target.hovered = target.pressed = false;
            target.checked = true;
            compare(painted(data), set.checked);
            target.checked = false;

            data.item[property] = "";
            if (data.item !== icon)
                verify(Qt.colorEqual(painted(data), "transparent"), "without a set nothing is painted");
            data.item[property] = data.name;
            data.item.controlsTarget = data.item;
        }

        function test_gradient() {
            const stops = gradient.children[0].gradient.stops;
            compare(stops.length, 2);
            compare([stops[0].position, stops[1].position], [0, 1]);
            for (const theme of ["light", "dark", "highContrast"]) {
                ThemeManager.theme = theme;
                compare(stops[0].color, App.getColorSet("theme-gradient-secondary-0-background", theme).normal);
                compare(stops[1].color, App.getColorSet("theme-gradient-secondary-1-background", theme).normal);
            }
            compare(gradient.children[0].gradient.orientation, Gradient.Vertical);
            gradient.gradientOrientation = Gradient.Horizontal;
            compare(gradient.children[0].gradient.orientation, Gradient.Horizontal);
        }

        function test_themeModeOfTheContext() {
            compare([darkSurface.rectangle.themeType, darkSurface.text.themeType, darkSurface.ring.themeType], ["dark", "dark", "dark"]);
            compare(darkSurface.rectangle.color, App.getColorSet("background-primary", "dark").normal);
            compare(rectangle.themeType, "global");
        }
    }

    ThemedCase {
        name: "Shapes"
        when: windowShown

        function test_frameBorderRule() {
            const item = createTemporaryObject(frameComponent, root);
            compare(item.border.width, 1);
            item.borderWidth = 5;
            compare(item.border.width, 5);
            item.borderColorSetName = "";
            compare(item.border.width, 0);
            item.borderColorSetName = "combobox-border";
            compare(item.border.width, 5);
        }

        function test_paneAliases() {
            const pane = createTemporaryObject(paneComponent, root);
            const background = pane.background;
            compare([pane.borderColorSetName, pane.borderWidth, background.border.width], ["", 0, 0]);
            compare(pane.backgroundColorSetName, "background-primary");
            pane.radius = 9;
            pane.borderWidth = 2;
            pane.borderColorSetName = "combobox-border";
            pane.backgroundColorSetName = "combobox-background";
            compare([background.radius, background.border.width], [9, 2]);
            compare(background.color, App.getColorSet("combobox-background").normal);
            pane.themeType = "dark";
            compare(background.border.color, App.getColorSet("combobox-border", "dark").normal);
            pane.controlsTarget = target;
            target.enabled = false;
            compare(background.color, App.getColorSet("combobox-background", "dark").disabled);
            target.enabled = true;
            compare([background.width, background.height], [pane.width, pane.height]);
        }

        function test_separator() {
            const separator = createTemporaryObject(separatorComponent, root);
            compare([separator.width, separator.height], [root.width, 1]);
            compare(separator.color, App.getColorSet("legacy-separator-primary").normal);
        }

        function test_flatShadow() {
            const owner = createTemporaryObject(shadowComponent, root);
            const shadow = owner.shadow;
            compare([shadow.width, shadow.height], [100, 50]);
            compare(shadow.offset, 1);
            compare([shadow.x, shadow.y], [1, 1]);
            compare([shadow.radius, shadow.z], [10, 2]);
            owner.height = 200;
            compare([shadow.offset, shadow.height, shadow.y], [2, 200, 2]);

            const plain = createTemporaryObject(plainShadowComponent, root);
            compare(plain.children[0].radius, 2, "a parent without a radius has square corners");
        }

        function test_dropShadow() {
            const owner = createTemporaryObject(dropShadowComponent, root);
            const shadow = owner.shadow;
            compare(shadow.source, owner);
            compare([shadow.width, shadow.height], [owner.width, owner.height]);
            compare([shadow.horizontalOffset, shadow.verticalOffset, shadow.radius, shadow.samples], [2, 2, 2, 5]);
            shadow.radius = 4;
            compare(shadow.samples, 9);
            verify(Qt.colorEqual(shadow.color, "#10000000"));
        }

        // Seen from the pixels: round at the top left, where the other set shows, and square elsewhere.
        function test_roundCorner() {
            const item = createTemporaryObject(roundCornerComponent, root);
            compare(item.gradientPrimary0BackgroundColorSetName, "theme-gradient-primary-0-background");
            compare(item.cornerRadius, 16);
            item.gradientPrimary0BackgroundColorSetName = "text-primary";
            item.gradientStartColourSetName = item.gradientEndColourSetName = "background-primary";
            const behind = App.getColorSet("text-primary").normal;
            const front = App.getColorSet("background-primary").normal;
            const image = grabImage(item);
            compare(image.pixel(1, 1), behind);
            for (const [x, y] of [[1, 38], [58, 1], [58, 38], [20, 20]])
                compare(image.pixel(x, y), front, "%1 %2".arg(x).arg(y));
        }

        Component {
            id: frameComponent

            KFrame {}
        }

        Component {
            id: paneComponent

            KPane {
                KText {
                    text: "Content"
                }
            }
        }

        Component {
            id: separatorComponent

            KSeparator {}
        }

        Component {
            id: shadowComponent

            Rectangle {
                property alias shadow: shadow

                width: 100
                height: 50
                radius: 8
                z: 3

                KDropShadowRect {
                    id: shadow
                }
            }
        }

        Component {
            id: plainShadowComponent

            Item {
                width: 100
                height: 50

                KDropShadowRect {}
            }
        }

        Component {
            id: dropShadowComponent

            Rectangle {
                property alias shadow: shadow

                width: 100
                height: 50

                KDropShadow {
                    id: shadow
                }
            }
        }

        Component {
            id: roundCornerComponent

            KGradientRectangleRoundCorner {
                width: 60
                height: 40
            }
        }
    }
}
