import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

ToolkitTestCase {
    id: testCase

    name: "DynamicImages"

    readonly property string picture: "qrc:/Resources/sample-landscape.png"
    readonly property string film: "qrc:/Resources/coverImageSpinner.gif"

    function test_spinnerCompletion_data() {
        return table(["tag", "type", "completions"], [
            ["progress", UTSpinner.Progress, 1],
            ["loading", UTSpinner.Loading, 1],
            ["none", -1, 1],
            ["unknown", 7, 1],
            ["waiting", UTSpinner.Waiting, 0]
        ]);
    }

    function test_spinnerCompletion(data) {
        const spinner = make("UTSpinner", { spinnerType: data.type });
        const completed = spyOn(spinner, "spinnerCompleted");
        for (const value of [0, 50, 99.9, 100, 100.1, -1, NaN])
            spinner.currentValue = value;
        compare(completed.count, data.completions);
    }

    // The colours at four points of the ring: upper right, lower right, lower left and upper left.
    function colors(spinner) {
        const image = grabImage(spinner);
        const near = 16 - 15 * Math.SQRT1_2, far = 32 - near;
        return [[far, near], [far, far], [near, far], [near, near]].map(([x, y]) => image.pixel(x, y));
    }

    function isNear(color, name) {
        const other = App.getColorSet(name).normal;
        return Math.abs(color.r - other.r) + Math.abs(color.g - other.g) + Math.abs(color.b - other.b) < 0.5;
    }

    function test_spinnerRing_data() {
        const progress = { c: "spinner-progress-cursor", t: "spinner-progress-track", d: "banner-style-success-text" };
        const loading = { c: "spinner-loading-cursor", t: "spinner-loading-track" };
        // What is seen of cursor, track and done, clockwise from the upper right.
        return table(["tag", "type", "value", "names", "ring"], [
            ["progress 0", UTSpinner.Progress, 0, progress, "tttt"],
            ["progress 50", UTSpinner.Progress, 50, progress, "cctt"],
            ["progress 75", UTSpinner.Progress, 75, progress, "ccct"],
            ["progress 100", UTSpinner.Progress, 100, progress, "dddd"],
            ["loading 25", UTSpinner.Loading, 25, loading, "cttt"],
            ["loading 100", UTSpinner.Loading, 100, loading, "cccc"]
        ]);
    }

    function test_spinnerRing(data) {
        const spinner = make("UTSpinner", { spinnerType: data.type, currentValue: data.value });
        for (const theme of ["light", "dark"]) {
            ThemeManager.theme = theme;
            tryVerify(() => colors(spinner).every((color, i) => isNear(color, data.names[data.ring[i]])), 3000, theme);
        }
    }

    function test_spinnerCheckMark() {
        const spinner = make("UTSpinner", { spinnerType: UTSpinner.Progress, currentValue: 99 });
        const mark = () => Array.from(spinner.children).find(child => child.svgName === "check-bold");
        verify(!mark());
        // Completing does not paint the ring anew, and shows the mark.
        const painted = spyOn(spinner, "painted");
        spinner.requestPaint();
        tryVerify(() => painted.count > 0);
        painted.clear();
        spinner.currentValue = 100;
        compareProperties(mark(), { visible: true, sourceSize: Qt.size(20, 20), x: 6, y: 6 });
        waitForRendering(spinner);
        compare(painted.count, 0);
        for (const [change, isVisible] of [[{ completeCheckMarkEnabled: false }, false], [{ completeCheckMarkEnabled: true }, true],
                                           [{ spinnerType: UTSpinner.Loading }, false], [{ spinnerType: UTSpinner.Progress }, true],
                                           [{ currentValue: 50 }, false]]) {
            Object.assign(spinner, change);
            compare(mark().visible, isVisible, JSON.stringify(change));
        }
    }

    function test_spinnerWaits() {
        const spinner = make("UTSpinner", { spinnerType: UTSpinner.Waiting, visible: false, currentValue: 95 });
        const moved = spyOn(spinner, "currentValueChanged");
        spinner.visible = true;
        tryVerify(() => moved.count >= 3);
        verify(spinner.currentValue < 20, "begins again at 100");
        compare(spinner.currentValue % 2.5, 0);
    }

    function test_spinnerSpeaks() {
        const hidden = make("UTSpinner", { visible: false });
        const spinner = make("UTSpinner", { spinnerType: UTSpinner.Progress });
        compare(heard(), ["Loading"], "not of the hidden one");
        spinner.UTAccessible.info.description = "Sending";
        compare(heard(), ["Sending"]);
        spinner.isTextChangedSayEnabled = false;
        spinner.UTAccessible.info.description = "";
        hidden.visible = true;
        compare(heard(), ["Loading"], "of the one that shows only");
        compare(Array.from(spinner.UTAccessible.supportedKeys), [AccessibleConstants.description]);
    }

    function test_spinnerReminds() {
        const spinner = make("UTSpinner", { spinnerType: UTSpinner.Waiting });
        const announcer = make("UTAnnounceLabel", { delay: true, isTextChangedSayEnabled: false, text: "again" });
        const motion = make("SpinnerMotion", { spinner: spinner, announcer: announcer }, spinner);
        heard();
        motion.reminder.triggered();
        compare(heard(), ["again"]);
        for (const [change, isRunning] of [[{}, [true, true]], [{ sayAccessible: false }, [true, false]],
                                           [{ sayAccessible: true, visible: false }, [false, false]],
                                           [{ visible: true, spinnerType: UTSpinner.Loading }, [false, false]]]) {
            Object.assign(spinner, change);
            compare([motion.running, motion.reminder.running], isRunning, JSON.stringify(change));
        }
    }

    function test_spinnerWithoutRoomForItsLine() {
        for (const width of [1, 2]) {
            const painted = spyOn(make("UTSpinner", { spinnerType: UTSpinner.Progress, currentValue: 40, width: width }), "painted");
            tryVerify(() => painted.count > 0);
        }
    }

    function test_announceLabel_data() {
        return table(["tag", "settings", "change", "said"], [
            ["text", {}, { text: "a" }, ["a"]],
            ["text while hidden", { visible: false }, { text: "a" }, ["a"]],
            ["text emptied", { text: "a" }, { text: "" }, []],
            ["text, silent", { isTextChangedSayEnabled: false }, { text: "a" }, []],
            ["text, disabled", { enabled: false }, { text: "a" }, []],
            ["shown", { visible: false, text: "a" }, { visible: true }, ["a"]],
            ["hidden", { text: "a" }, { visible: false }, []],
            ["formatted", { isFormattingRemoved: true }, { text: "<b>a</b>" }, ["a"]]
        ]);
    }

    function test_announceLabel(data) {
        for (const isDelayed of [false, true]) {
            const label = make("UTAnnounceLabel", Object.assign({ delay: isDelayed }, data.settings));
            const wasSaid = heard().length > 0;
            const atOnce = emitted(UIToolKitUtils, ["announced"], () => Object.assign(label, data.change));
            compare(atOnce, isDelayed || data.said.length === 0 ? "" : "announced");
            compare(heard(), data.said);
            compare(label.Accessible.focused, wasSaid || data.said.length > 0);
        }
    }

    function test_labelToolTip() {
        const label = make("UTLabel", { text: "text" });
        compare(label.toolTip, null);
        label.toolTipText = "tip";
        for (const [x, isEnabled, isActive] of [[390, true, false], [5, true, true], [5, false, false]]) {
            label.tooltipEnabled = isEnabled;
            mouseMove(testCase, x, 5);
            tryCompare(label.toolTip, "active", isActive);
        }
        compareProperties(label.toolTip, { tooltipText: "tip", isTooltipCustom: false });
    }

    function test_sources_data() {
        const encoded = address => MediaPolicy.encode(address);
        // loaders: whether those of still images and of films are active.
        return table(["tag", "sources", "loaders"], [
            ["none", [], [false, false]],
            ["direct", [picture], [true, false]],
            ["encoded", [encoded(picture)], [true, false]],
            ["film", [encoded(film)], [false, true]],
            ["dark alone", [MediaPolicy.encode("", film)], [false, false]],
            ["film, then direct", [encoded(film), picture], [true, true]],
            ["image, then film", [encoded(picture), encoded(film)], [false, true]],
            ["film, then nothing", [encoded(film), ""], [false, true]]
        ]);
    }

    function test_sources(data) {
        const resource = make("UTDynamicResource", { width: 60, height: 40 });
        for (const source of data.sources)
            resource.imageSource = source;
        const loaders = Array.from(resource.children);
        compare(loaders.map(loader => loader.active), data.loaders);
        compare(loaders.map(loader => loader.visible), data.loaders);
    }

    function test_resource_data() {
        return table(["tag", "source", "fillMode"], [["still", picture, Image.Stretch], ["film", film, Image.PreserveAspectCrop]]);
    }

    function test_resource(data) {
        const isFilm = data.source === film;
        const resource = make("UTDynamicResource", { width: 60, height: 40, imageFillMode: data.fillMode, mirrorEnabled: true, fallbackImage: "qrc:/Resources/empty-inbox.svg" });
        const loaded = spyOn(resource, "resourceLoaded");
        resource.imageSource = MediaPolicy.encode(data.source);
        for (const [theme, isDark] of [["dark", true], ["light", false]]) {
            ThemeManager.theme = theme;
            compare(resource.resourceUrl, `image://dynamic/?imageProviderUrl=${resource.imageSource}&isDark=${isDark}&fallbackImage=${resource.fallbackImage}`);
        }
        const image = resource.children[isFilm ? 1 : 0].item.image;
        tryVerify(() => isFilm ? image.movie : loaded.count === 1);
        if (!isFilm)
            compare(Array.from(loaded.signalArguments[0]), [320, 240]);
        compareProperties(image, { fillMode: data.fillMode, mirror: true, visible: true, width: 60, height: 40 });
    }

    function test_stillPages() {
        const still = make("KDynamicImage", { width: 100, height: 50 });
        const shown = () => [still.children[0].visible, still.image.visible];
        for (const showsSpinner of [false, true]) {
            still.showSpinner = showsSpinner;
            compare(shown(), [showsSpinner, false]);
        }
        still.image.source = picture;
        tryVerify(() => still.image.visible);
        still.image.source = "";
        compare(shown(), [false, true], "never back");
    }

    // The film is square.
    function test_aspectRatio() {
        for (const [width, height, keepAspectRatio, size] of [
            [100, 40, true, [40, 40]], [30, 90, true, [30, 30]], [50, 50, true, [50, 50]], [100, 40, false, [100, 40]], [0, 0, true, [0, 0]]
        ]) {
            const animated = make("KDynamicAnimatedImage", { width, height, keepAspectRatio, source: film });
            tryVerify(() => animated.image.movie);
            compare([animated.image.width, animated.image.height], size, "%1 x %2".arg(width).arg(height));
        }
    }

    function test_filmPages() {
        const animated = make("KDynamicAnimatedImage", { width: 60, height: 60 });
        const pages = () => Array.from(animated.children).slice(0, 3).map(page => page.visible);
        compare(pages(), [true, false, false]);
        animated.isSpinnerShown = false;
        compare(pages(), [false, false, false]);
        animated.source = film;
        tryVerify(() => animated.image.movie);
        compare(pages(), [false, true, false]);
        ignoreWarning(/Media: "https:\/\/a.example\/film.gif" is not shown: the host/);
        animated.source = "image://dynamic/?imageProviderUrl=" + MediaPolicy.encode("https://a.example/film.gif") + "&isDark=false&fallbackImage=" + picture;
        compare(pages(), [false, false, true]);
        verify(!animated.image.movie);
        tryCompare(animated.children[2], "status", Image.Ready);
    }

    function test_cover() {
        const cover = make("KCoverImage");
        cover.controller.imageSource = picture;
        tryCompare(cover.image, "status", Image.Ready);
        cover.controller.fetch("qrc:/Resources/empty-inbox.svg");
        verify(cover.image.source.toString().startsWith("image://dynamic/"));
        tryCompare(cover.image, "status", Image.Ready);
    }

    function test_frames() {
        const wave = make("KSvgSequenceAnimated");
        verify(wave.loops < 0);
        for (const [change, source] of [
            [{}, ""],
            [{ imagePrefixName: "audio-wave-" }, "qrc:/Resources/audio-wave-0.svg"],
            [{ svgColorSetName: "text-primary" }, "image://svg/%1/audio-wave-0".arg(App.getColorSet("text-primary").normal)]
        ]) {
            Object.assign(wave, change);
            compare(wave.source, Qt.url(source));
        }

        const [none, one, four] = [0, 1, 4].map(count => make("KSvgSequenceAnimated", { imagePrefixName: "audio-wave-", frameDuration: 10, frameCount: count }));
        const moves = [none, one].map(still => spyOn(still, "currentFrameChanged"));
        for (const frame of [3, 0, 2])
            tryCompare(four, "currentFrame", frame);
        compare(moves.map(spy => spy.count), [0, 0]);
    }

    function test_watermark_data() {
        return table(["tag", "width", "height", "settings"], [
            ["wide", 300, 100, {}],
            ["high", 100, 300, {}],
            ["size told", 200, 200, { watermarkSize: UTWatermarkEnum.Large }],
            ["other way", 200, 200, { rotationAngle: 30 }],
            ["straight", 200, 200, { rotationAngle: 0 }],
            ["no room", 0, 0, {}]
        ]);
    }

    function test_watermark(data) {
        const ground = make("KItem", { width: data.width, height: data.height });
        const watermark = make("UTWatermark", Object.assign({ contentText: "secret" }, data.settings), ground);
        const angle = Math.abs(data.settings.rotationAngle ?? -15) * Math.PI / 180;
        fuzzyCompare(watermark.actualWidth, data.width / Math.cos(angle) + data.height * Math.sin(angle), 1);
        fuzzyCompare(watermark.actualHeight, (data.height + data.width * Math.tan(angle)) * Math.cos(angle), 1);

        const [measure, grid] = Array.from(watermark.children);
        const rows = Array.from(grid.children).filter(row => row.spacing === 72);
        compare(rows.length, Math.ceil(watermark.actualHeight / (measure.height + 100)));
        for (const [i, row] of rows.entries()) {
            const cells = Array.from(row.children).filter(cell => cell.opacity === 0.1);
            compare(cells.length, Math.ceil(watermark.actualWidth / (measure.width + 72)));
            compare(row.leftPadding, i % 2 * (measure.width + 72) / 2);
            const { width, height } = cells[0];
            const [black, white] = Array.from(cells[0].children);
            compare([width, height], [measure.width + 72, measure.height + 100]);
            compareProperties(black, { color: "#000000", x: width - black.width - 1, y: height - black.height - 1 });
            compareProperties(white, { color: "#ffffff", x: width - white.width, y: height - white.height, text: "secret" });
        }
        watermark.contentText = "";
        tryCompare(grid, "height", 0);
    }
}
