import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: root

    width: 300
    height: 300

    KSvgIcon {
        id: icon
    }

    UTSvgResource {
        id: resource

        sourceSize: Qt.size(16, 16)
    }

    KImage {
        id: image

        width: 40
        height: 40
    }

    TestCase {
        name: "KSvgIcon"

        function init() {
            failOnWarning(/.?/);
            icon.svgName = "";
            icon.svgColorSetName = "";
            icon.svgColor = "black";
        }

        function cleanup() {
            ThemeManager.theme = "light";
        }

        function test_source() {
            compare([icon.width, icon.height, icon.sourceSize], [12, 12, Qt.size(12, 12)]);
            compare(icon.source, Qt.url(""));
            icon.svgName = "plus-bold";
            compare(icon.source, Qt.url("image://svg/#000000/plus-bold"));
            icon.svgColor = "#80ff0000";
            compare(icon.source, Qt.url("image://svg/#80ff0000/plus-bold"));
            icon.svgColorSetName = "text-primary";
            for (const theme of ["dark", "light"]) {
                ThemeManager.theme = theme;
                compare(icon.source, Qt.url("image://svg/%1/plus-bold".arg(App.getColorSet("text-primary").normal)));
            }
            icon.svgName = "";
            compare(icon.source, Qt.url(""));
        }

        function test_size() {
            icon.svgName = "plus-bold";
            icon.height = 24;
            tryCompare(icon, "status", Image.Ready);
            compare([icon.width, icon.sourceSize], [24, Qt.size(24, 24)]);
            icon.height = 12;
        }

        function test_picture() {
            const picture = createTemporaryObject(pictureComponent, root);
            compare([picture.width, picture.height], [200, 200]);
            compare(picture.source, Qt.url(""));
            picture.svgName = "empty-inbox";
            compare(picture.source, Qt.url("qrc:/Resources/empty-inbox.svg"));
            tryCompare(picture, "status", Image.Ready);
        }

        Component {
            id: pictureComponent

            KSvgImage {}
        }
    }

    TestCase {
        name: "UTSvgResource"

        readonly property var blank: ({ svgName: "", pngName: "", emojiName: "", svgColor: "transparent" })
        readonly property var full: ({ svgName: "plus-bold", pngName: "spinner.svg", emojiName: "qrc:/emojis", svgColor: "red" })

        function init() {
            failOnWarning(/.?/);
        }

        function test_source_data() {
            const type = {
                none: UTSvgResource.ImagePrefixType.None,
                png: UTSvgResource.ImagePrefixType.Png,
                emoji: UTSvgResource.ImagePrefixType.Emoji,
                emojiWithTheme: UTSvgResource.ImagePrefixType.EmojiWithTheme,
                svg: UTSvgResource.ImagePrefixType.Svg
            };
            const svg = "image://svg/#ff0000/plus-bold";
            const png = "qrc:/Resources/spinner.svg";
            const rows = [
                ["png", type.png, {}, png],
                ["png unnamed", type.png, { pngName: "" }, ""],
                ["emoji", type.emoji, { svgName: "smile.svg" }, "qrc:/emojis/smile.svg"],
                ["emoji unnamed", type.emoji, { svgName: "" }, ""],
                ["themed emoji", type.emojiWithTheme, {}, "qrc:/emojis/global/0"],
                ["themed emoji unnamed", type.emojiWithTheme, { emojiName: "" }, ""],
                ["svg", type.svg, {}, svg],
                ["svg translucent", type.svg, { svgColor: "#80ff0000" }, "image://svg/#80ff0000/plus-bold"],
                ["svg unnamed", type.svg, { svgName: "" }, ""],
                ["svg transparent", type.svg, { svgColor: "transparent" }, ""],
                ["none: svg before png", type.none, {}, svg],
                ["none: png for a transparent svg", type.none, { svgColor: "transparent" }, png],
                ["none: png for an unnamed svg", type.none, { svgName: "" }, png],
                ["none: emoji last", type.none, { svgName: "", pngName: "" }, "qrc:/emojis/global/0"],
                ["none: nothing", type.none, blank, ""]
            ];
            return rows.map(([tag, prefix, values, source]) => ({ tag: tag, prefix: prefix, values: values, source: source }));
        }

        function test_source(data) {
            // The themed emoji is the host's to supply; here only the address counts.
            if (data.source.startsWith("qrc:/emojis/global"))
                ignoreWarning(/Cannot open: qrc:\/emojis\/global\/0/);
            // All in one object, so that no address on the way there is loaded.
            const values = Object.assign({ imagePrefixType: data.prefix, sourceSize: Qt.size(16, 16) }, full, data.values);
            const object = createTemporaryObject(resourceComponent, root, values);
            compare(object.source, Qt.url(data.source));
            tryVerify(() => object.status !== Image.Loading);
        }

        function test_validSize_data() {
            return [
                { tag: "both", size: Qt.size(16, 16), valid: true },
                { tag: "no width", size: Qt.size(0, 16), valid: false },
                { tag: "no height", size: Qt.size(16, 0), valid: false },
                { tag: "none", size: Qt.size(0, 0), valid: false }
            ];
        }

        function test_validSize(data) {
            const object = createTemporaryObject(resourceComponent, root, { svgName: "plus-bold", svgColor: "red" });
            verify(!object.validSize);
            compare(object.source, Qt.url(""));
            object.sourceSize = Qt.size(8, 8);
            verify(object.validSize);
            object.sourceSize = data.size;
            compare(object.validSize, data.valid);
            compare(object.source.toString().length > 0, data.valid);
        }

        function test_enumeration() {
            compare([UTSvgResource.None, UTSvgResource.Png, UTSvgResource.Emoji, UTSvgResource.EmojiWithTheme, UTSvgResource.Svg], [0, 1, 2, 3, 4]);
        }

        Component {
            id: resourceComponent

            UTSvgResource {}
        }
    }

    TestCase {
        name: "Spinners"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function cleanup() {
            ThemeManager.theme = "light";
            image.hasSpinner = false;
            image.source = "";
        }

        function test_imageSpinner() {
            verify(image.asynchronous);
            compare([image.isSpinnerVisible, image.children.length], [false, 0], "no spinner is made before it is wanted");
            image.hasSpinner = true;
            verify(image.isSpinnerVisible);
            compare(image.children.length, 1);
            const spinner = image.children[0];
            verify(spinner.visible);
            verify(!spinner.paused);
            compare([Math.ceil(spinner.x + spinner.width / 2), Math.ceil(spinner.y + spinner.height / 2)], [20, 20]);

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
            const spinner = createTemporaryObject(gifComponent, root);
            for (const [theme, name] of [["light", "coverImageSpinner"], ["dark", "coverImageSpinnerDark"]]) {
                ThemeManager.theme = theme;
                compare(spinner.source, Qt.url("qrc:///Resources/%1.gif".arg(name)));
                compare(spinner.status, AnimatedImage.Ready);
                verify(spinner.frameCount > 1);
            }
        }

        function test_svgSpinner() {
            const spinner = createTemporaryObject(svgSpinnerComponent, root, { rotateDuration: 300 });
            compare([spinner.width, spinner.height, spinner.status], [16, 16, Image.Ready]);
            compare(spinner.state, "rotate");
            tryVerify(() => spinner.rotation > 90);
            spinner.visible = false;
            compare([spinner.state, spinner.rotation], ["stopped", 0]);
            spinner.visible = true;
            compare(spinner.state, "rotate");
            // Turning on after the first turn is over.
            tryVerify(() => spinner.rotation > 270);
            tryVerify(() => spinner.rotation < 90);
            tryVerify(() => spinner.rotation > 180);

            const hidden = createTemporaryObject(svgSpinnerComponent, root, { visible: false });
            compare([hidden.state, hidden.rotation], ["stopped", 0]);
        }

        Component {
            id: gifComponent

            KSpinner {}
        }

        Component {
            id: svgSpinnerComponent

            KSvgSpinner {}
        }
    }
}
