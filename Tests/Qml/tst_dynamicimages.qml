import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

ToolkitTestCase {
    id: testCase

    name: "DynamicImages"

    readonly property string picture: "qrc:/Resources/sample-landscape.png"
    readonly property string film: "qrc:/Resources/coverImageSpinner.gif"

    function test_spinnerCompletion() {
        const unknown = 7, none = -1;
        for (const [type, completions] of [[UTSpinner.Progress, 1], [UTSpinner.Loading, 1], [none, 1], [unknown, 1], [UTSpinner.Waiting, 0]]) {
            const spinner = make("UTSpinner", { spinnerType: type });
            const completed = spyOn(spinner, "spinnerCompleted");
            for (const value of [0, 50, 99.9, 100, 100.1, -1, NaN])
                spinner.currentValue = value;
            compare(completed.count, completions, type);
        }
    }

    function isNear(color: color, other: color): bool {
        return Math.abs(color.r - other.r) + Math.abs(color.g - other.g) + Math.abs(color.b - other.b) < 0.5;
    }

    function test_spinnerRing_data() {
        // What is seen of cursor, track and done, clockwise from the upper right.
        return table(["tag", "type", "value", "ring"], [
            ["progress 0", UTSpinner.Progress, 0, "tttt"],
            ["progress 50", UTSpinner.Progress, 50, "cctt"],
            ["progress 100", UTSpinner.Progress, 100, "dddd"],
            ["loading 25", UTSpinner.Loading, 25, "cttt"],
            ["loading 100", UTSpinner.Loading, 100, "cccc"]
        ]);
    }

    function test_spinnerRing(data) {
        const spinner = make("UTSpinner", { spinnerType: data.type, currentValue: data.value });
        const kind = data.tag.split(" ")[0];
        const names = { c: `spinner-${kind}-cursor`, t: `spinner-${kind}-track`, d: "banner-style-success-text" };
        const near = 16 - 15 * Math.SQRT1_2, far = 32 - near;
        const points = [[far, near], [far, far], [near, far], [near, near]];
        for (const theme of ["light", "dark"]) {
            ThemeManager.theme = theme;
            const expected = Array.from(data.ring, letter => App.getColorSet(names[letter]).normal);
            tryVerify(() => {
                const image = grabImage(spinner);
                return points.every(([x, y], i) => isNear(image.pixel(x, y), expected[i]));
            }, undefined, theme);
        }
    }

    function test_spinnerWithoutRoomForItsLine() {
        for (const width of [1, 2]) {
            const painted = spyOn(make("UTSpinner", { spinnerType: UTSpinner.Progress, currentValue: 40, width }), "painted");
            tryVerify(() => painted.count > 0);
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

    function test_sources() {
        const encoded = address => MediaPolicy.encode(address);
        // Whether the loaders of still images and of films are active after those sources.
        for (const [why, sources, areActive] of [
            ["none", [], [false, false]],
            ["direct", [picture], [true, false]],
            ["encoded", [encoded(picture)], [true, false]],
            ["film", [encoded(film)], [false, true]],
            ["dark alone", [MediaPolicy.encode("", film)], [false, false]],
            ["film, then direct", [encoded(film), picture], [true, true]],
            ["image, then film", [encoded(picture), encoded(film)], [false, true]],
            ["film, then nothing", [encoded(film), ""], [false, true]]
        ]) {
            const resource = make("UTDynamicResource", { width: 60, height: 40 });
            for (const source of sources)
                resource.imageSource = source;
            const loaders = Array.from(resource.children);
            compare(loaders.map(loader => loader.active), areActive, why);
            compare(loaders.map(loader => loader.visible), areActive, why);
        }
    }

    function test_resource() {
        for (const [source, loaderIndex, fillMode] of [[picture, 0, Image.Stretch], [film, 1, Image.PreserveAspectCrop]]) {
            const resource = make("UTDynamicResource", {
                width: 60, height: 40, imageFillMode: fillMode, mirrorEnabled: true, fallbackImage: "qrc:/Resources/empty-inbox.svg"
            });
            const loaded = spyOn(resource, "resourceLoaded");
            resource.imageSource = MediaPolicy.encode(source);
            for (const theme of ["dark", "light"]) {
                ThemeManager.theme = theme;
                compare(resource.resourceUrl, `image://dynamic/?imageProviderUrl=${resource.imageSource}&isDark=${theme === "dark"}&fallbackImage=${resource.fallbackImage}`);
            }
            const image = resource.children[loaderIndex].item.image;
            tryVerify(() => source === film ? image.movie : loaded.count === 1);
            compare(loaded.signalArguments.map(args => Array.from(args)), source === film ? [] : [[320, 240]]);
            compareProperties(image, { fillMode, mirror: true, visible: true, width: 60, height: 40 });
        }
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

    function test_watermark() {
        for (const [width, height, settings, actualWidth, actualHeight] of [
            [300, 100, { watermarkSize: UTWatermarkEnum.Large }, 336, 174],
            [100, 300, {}, 181, 315],
            [200, 100, { rotationAngle: 30 }, 280, 186],
            [0, 0, {}, 0, 0]
        ]) {
            const ground = make("KItem", { width, height });
            const watermark = make("UTWatermark", Object.assign({ contentText: "secret" }, settings), ground);
            compareProperties(watermark, { actualWidth, actualHeight });

            const [measure, grid] = Array.from(watermark.children);
            const cellWidth = measure.width + 72, cellHeight = measure.height + 100;
            const rows = Array.from(grid.children).filter(row => row.spacing === 72);
            compare(rows.length, Math.ceil(actualHeight / cellHeight));
            for (const [i, row] of rows.entries()) {
                const cells = Array.from(row.children).filter(cell => cell.opacity === 0.1);
                compare(cells.length, Math.ceil(actualWidth / cellWidth));
                compare(row.leftPadding, i % 2 * cellWidth / 2);
                compareProperties(cells[0], { width: cellWidth, height: cellHeight });
                const [black, white] = Array.from(cells[0].children);
                compareProperties(black, { color: "#000000", x: cellWidth - black.width - 1, y: cellHeight - black.height - 1 });
                compareProperties(white, { color: "#ffffff", x: cellWidth - white.width, y: cellHeight - white.height, text: "secret" });
            }
            watermark.contentText = "";
            tryCompare(grid, "height", 0);
        }
    }
}
