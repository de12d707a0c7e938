import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 300
    height: 300

    ToolkitTestCase {
        name: "Svg"

        function test_icon() {
            const icon = make("KSvgIcon");
            compareProperties(icon, { width: 12, height: 12, sourceSize: Qt.size(12, 12), source: Qt.url("") });
            icon.svgName = "plus-bold";
            compare(icon.source, Qt.url("image://svg/#000000/plus-bold"));
            icon.svgColor = "#80ff0000";
            compare(icon.source, Qt.url("image://svg/#80ff0000/plus-bold"));
            icon.svgColorSetName = "text-primary";
            for (const theme of themes) {
                ThemeManager.theme = theme;
                compare(icon.source, Qt.url("image://svg/%1/plus-bold".arg(App.getColorSet("text-primary", theme).normal)));
            }
            icon.height = 24;
            tryCompare(icon, "status", Image.Ready);
            compareProperties(icon, { width: 24, sourceSize: Qt.size(24, 24) });
        }

        function test_picture() {
            const picture = make("KSvgImage");
            compareProperties(picture, { width: 200, height: 200, source: Qt.url(""), antialiasing: true, mipmap: true, smooth: true });
            picture.svgName = "empty-inbox";
            compare(picture.source, Qt.url("qrc:/Resources/empty-inbox.svg"));
            tryCompare(picture, "status", Image.Ready);
        }
    }

    ToolkitTestCase {
        name: "UTSvgResource"

        function test_source_data() {
            const none = 0, png = 1, emoji = 2, emojiWithTheme = 3, svg = 4;
            const svgSource = "image://svg/#ff0000/plus-bold";
            const pngSource = "qrc:/Resources/spinner.svg";
            // Changes to a resource that has all names and a colour.
            return table(["tag", "prefix", "changes", "source"], [
                ["png", png, {}, pngSource],
                ["png unnamed", png, { pngName: "" }, ""],
                ["emoji", emoji, { svgName: "smile.svg" }, "qrc:/emojis/smile.svg"],
                ["emoji unnamed", emoji, { svgName: "" }, ""],
                ["themed emoji", emojiWithTheme, {}, "qrc:/emojis/global/0"],
                ["themed emoji unnamed", emojiWithTheme, { emojiName: "" }, ""],
                ["svg translucent", svg, { svgColor: "#80ff0000" }, "image://svg/#80ff0000/plus-bold"],
                ["svg unnamed", svg, { svgName: "" }, ""],
                ["svg transparent", svg, { svgColor: "transparent" }, ""],
                ["none: svg before png", none, {}, svgSource],
                ["none: png for a transparent svg", none, { svgColor: "transparent" }, pngSource],
                ["none: png for an unnamed svg", none, { svgName: "" }, pngSource],
                ["none: emoji last", none, { svgName: "", pngName: "" }, "qrc:/emojis/global/0"],
                ["none: nothing", none, { svgName: "", pngName: "", emojiName: "" }, ""],
                ["no width", none, { sourceSize: Qt.size(0, 16) }, ""],
                ["no height", none, { sourceSize: Qt.size(16, 0) }, ""]
            ]);
        }

        function test_source(data) {
            // The themed emoji is the host's to supply; here only the address counts.
            if (data.source.startsWith("qrc:/emojis/global"))
                ignoreWarning(/Cannot open: qrc:\/emojis\/global\/0/);
            const full = { svgName: "plus-bold", pngName: "spinner.svg", emojiName: "qrc:/emojis", svgColor: "red", sourceSize: Qt.size(16, 16) };
            // All at once, so that no address on the way there is loaded.
            const resource = make("UTSvgResource", Object.assign({ imagePrefixType: data.prefix }, full, data.changes));
            compare(resource.source, Qt.url(data.source));
            tryVerify(() => resource.status !== Image.Loading);
        }

        function test_validSizeFollowsTheSourceSize() {
            const resource = make("UTSvgResource", { svgName: "plus-bold", svgColor: "red" });
            for (const [size, isValid] of [[Qt.size(0, 0), false], [Qt.size(8, 8), true], [Qt.size(8, 0), false]]) {
                resource.sourceSize = size;
                compareProperties(resource, { validSize: isValid, source: Qt.url(isValid ? "image://svg/#ff0000/plus-bold" : "") });
            }
        }

        function test_defaults() {
            compareProperties(make("UTSvgResource"), { imagePrefixType: 0, validSize: false, antialiasing: true, mipmap: true, smooth: true });
            compare([UTSvgResource.None, UTSvgResource.Png, UTSvgResource.Emoji, UTSvgResource.EmojiWithTheme, UTSvgResource.Svg], [0, 1, 2, 3, 4]);
        }
    }

    ToolkitTestCase {
        name: "Spinners"

        function test_imageSpinner() {
            const image = make("KImage", { width: 40, height: 40 });
            compareProperties(image, { asynchronous: true, isSpinnerVisible: false, "children.length": 0 });
            image.hasSpinner = true;
            const spinner = image.children[0];
            compareProperties(spinner, { visible: true, paused: false, "anchors.centerIn": image });

            image.source = "qrc:/Resources/empty-inbox.svg";
            tryCompare(image, "status", Image.Ready);
            compare([image.isSpinnerVisible, spinner.visible, spinner.paused], [false, false, true]);

            ignoreWarning(/Cannot open: qrc:\/Resources\/nowhere.png/);
            image.source = "qrc:/Resources/nowhere.png";
            tryCompare(image, "status", Image.Error);
            verify(spinner.visible);
            image.hasSpinner = false;
            verify(!spinner.visible);
            image.hasSpinner = true;
            compare(image.children.length, 1, "the spinner is made once");
        }

        function test_gif() {
            const spinner = make("KSpinner");
            for (const [theme, name] of [["light", "coverImageSpinner"], ["dark", "coverImageSpinnerDark"]]) {
                ThemeManager.theme = theme;
                compareProperties(spinner, { source: Qt.url("qrc:///Resources/%1.gif".arg(name)), status: AnimatedImage.Ready });
                verify(spinner.frameCount > 1);
            }
        }

        function test_svgSpinner() {
            compare(make("KSvgSpinner").rotateDuration, 1000);
            const spinner = make("KSvgSpinner", { rotateDuration: 300 });
            compareProperties(spinner, { width: 16, height: 16, status: Image.Ready, state: "rotate" });
            tryVerify(() => spinner.rotation > 90);
            spinner.visible = false;
            compareProperties(spinner, { state: "stopped", rotation: 0 });
            spinner.visible = true;
            compare(spinner.state, "rotate");
            // Turning on after the first turn is over.
            tryVerify(() => spinner.rotation > 270);
            tryVerify(() => spinner.rotation < 90);
            tryVerify(() => spinner.rotation > 180);

            compareProperties(make("KSvgSpinner", { visible: false }), { state: "stopped", rotation: 0 });
        }
    }
}
