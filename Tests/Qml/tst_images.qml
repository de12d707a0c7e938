import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

ToolkitTestCase {
    name: "Images"

    function test_icon() {
        const icon = make("KSvgIcon");
        const setColor = () => App.getColorSet("text-primary", ThemeManager.theme).normal;
        for (const [change, color] of [[{ svgName: "plus-bold" }, () => "#000000"], [{ svgColor: "#80ff0000" }, () => "#80ff0000"], [{ svgColorSetName: "text-primary" }, setColor]]) {
            Object.assign(icon, change);
            for (const theme of themes) {
                ThemeManager.theme = theme;
                compare(icon.source, Qt.url("image://svg/%1/plus-bold".arg(color())));
            }
        }
        compare(icon.sourceSize, Qt.size(12, 12));
        icon.height = 24;
        tryCompare(icon, "status", Image.Ready);
        compareProperties(icon, { width: 24, sourceSize: Qt.size(24, 24) });
        icon.svgName = "";
        compare(icon.source, Qt.url(""));
    }

    function test_picture() {
        const picture = make("KSvgImage", { svgName: "empty-inbox" });
        compareProperties(picture, { width: 200, height: 200, source: Qt.url("qrc:/Resources/empty-inbox.svg") });
        tryCompare(picture, "status", Image.Ready);
    }

    function test_resource_data() {
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
            ["none: nothing", none, { svgName: "", pngName: "", emojiName: "" }, ""]
        ]);
    }

    function test_resource(data) {
        // The themed emoji is the host's to supply; here only the address counts.
        if (data.source.startsWith("qrc:/emojis/global"))
            ignoreWarning(/Cannot open: qrc:\/emojis\/global\/0/);
        const full = { svgName: "plus-bold", pngName: "spinner.svg", emojiName: "qrc:/emojis", svgColor: "red", sourceSize: Qt.size(16, 16) };
        // All at once, so that no address on the way there is loaded.
        const resource = make("UTSvgResource", Object.assign({ imagePrefixType: data.prefix }, full, data.changes));
        compare(resource.source, Qt.url(data.source));
        tryVerify(() => resource.status !== Image.Loading);
    }

    function test_resourceWithoutSize() {
        const resource = make("UTSvgResource", { svgName: "plus-bold", svgColor: "red" });
        for (const [size, isValid] of [[Qt.size(0, 0), false], [Qt.size(8, 8), true], [Qt.size(8, 0), false], [Qt.size(0, 8), false]]) {
            resource.sourceSize = size;
            compareProperties(resource, { validSize: isValid, source: Qt.url(isValid ? "image://svg/#ff0000/plus-bold" : "") });
        }
    }

    function test_imageSpinner() {
        const image = make("KImage", { width: 40, height: 40 });
        compare(image.children.length, 0);
        image.hasSpinner = true;
        const spinner = image.children[0];
        compareProperties(spinner, { visible: true, paused: false });

        image.source = "qrc:/Resources/empty-inbox.svg";
        tryCompare(image, "status", Image.Ready);
        compareProperties(spinner, { visible: false, paused: true });

        ignoreWarning(/Cannot open: qrc:\/Resources\/nowhere.png/);
        image.source = "qrc:/Resources/nowhere.png";
        tryCompare(image, "status", Image.Error);
        for (const hasSpinner of [true, false, true]) {
            image.hasSpinner = hasSpinner;
            compare(spinner.visible, hasSpinner);
        }
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
        const spinner = make("KSvgSpinner", { rotateDuration: 300 });
        // Turning on after the first turn is over.
        for (const isThere of [angle => angle > 270, angle => angle < 90, angle => angle > 180])
            tryVerify(() => isThere(spinner.rotation));
        spinner.visible = false;
        compareProperties(spinner, { status: Image.Ready, state: "stopped", rotation: 0 });
        spinner.visible = true;
        compare(spinner.state, "rotate");
        compareProperties(make("KSvgSpinner", { visible: false }), { state: "stopped", rotation: 0 });
    }
}
