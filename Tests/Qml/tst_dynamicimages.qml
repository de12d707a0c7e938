import QtQuick
import QtTest
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

Item {
    id: root

    readonly property string picture: "qrc:/Resources/sample-landscape.png"
    readonly property string film: "qrc:/Resources/coverImageSpinner.gif"

    width: 300
    height: 300

    SignalSpy { id: spy }
    SignalSpy { id: announcements; target: UIToolKitUtils; signalName: "announced" }

    function listen(item: var, signalName: string): void {
        spy.target = null;
        spy.signalName = signalName;
        spy.target = item;
        spy.clear();
    }

    ToolkitTestCase {
        name: "UTSpinner"

        function cleanup() {
            wait(0); // what is to be said later is said
            announcements.clear();
            ThemeManager.theme = "light";
        }

        function test_completion_data() {
            const all = [0, 50, 99.9, 100, 100.1, -1, NaN];
            return table(["tag", "type", "values", "completions"], [
                ["progress", UTSpinner.Progress, all, 1],
                ["loading", UTSpinner.Loading, all, 1],
                ["none", -1, all, 1],
                ["unknown", 7, all, 1],
                ["waiting", UTSpinner.Waiting, all, 0]
            ]);
        }

        function test_completion(data) {
            const spinner = make("UTSpinner", { spinnerType: data.type });
            compareProperties(spinner, { width: 32, height: 32, sayAccessible: true, completeCheckMarkEnabled: true, isTextChangedSayEnabled: true });
            listen(spinner, "spinnerCompleted");
            for (const value of data.values)
                spinner.currentValue = value;
            compare(spy.count, data.completions);
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

        function test_ring_data() {
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

        function test_ring(data) {
            const spinner = make("UTSpinner", { spinnerType: data.type, currentValue: data.value });
            for (const theme of ["light", "dark"]) {
                ThemeManager.theme = theme;
                tryVerify(() => colors(spinner).every((color, i) => isNear(color, data.names[data.ring[i]])), 3000, theme);
            }
        }

        function test_checkMark() {
            const spinner = make("UTSpinner", { spinnerType: UTSpinner.Progress, currentValue: 99 });
            const mark = () => Array.from(spinner.children).find(child => child.svgName === "check-bold");
            verify(!mark());
            // Completing does not paint the ring anew, and shows the mark.
            listen(spinner, "painted");
            spinner.requestPaint();
            tryVerify(() => spy.count > 0);
            spy.clear();
            spinner.currentValue = 100;
            compareProperties(mark(), { visible: true, sourceSize: Qt.size(20, 20), x: 6, y: 6 });
            waitForRendering(spinner);
            compare(spy.count, 0);
            for (const [change, isVisible] of [[{ completeCheckMarkEnabled: false }, false], [{ completeCheckMarkEnabled: true }, true],
                                               [{ spinnerType: UTSpinner.Loading }, false], [{ spinnerType: UTSpinner.Progress }, true],
                                               [{ currentValue: 50 }, false]]) {
                Object.assign(spinner, change);
                compare(mark().visible, isVisible, JSON.stringify(change));
            }
        }

        function test_waiting() {
            const spinner = make("UTSpinner", { spinnerType: UTSpinner.Waiting, visible: false, currentValue: 95 });
            listen(spinner, "currentValueChanged");
            spinner.visible = true;
            tryVerify(() => spy.count >= 3);
            verify(spinner.currentValue < 20, "begins again at 100");
            compare(spinner.currentValue % 2.5, 0);
            spinner.visible = false;
            const value = spinner.currentValue;
            announcements.clear();
            spinner.spinnerType = UTSpinner.Loading;
            spinner.visible = true;
            tryCompare(announcements, "count", 1);
            compare(spinner.currentValue, value, "rests");
        }

        function test_announcements() {
            const hidden = make("UTSpinner", { visible: false });
            const spinner = make("UTSpinner", { spinnerType: UTSpinner.Progress });
            tryCompare(announcements, "count", 1); // not of the hidden one
            compare(announcements.signalArguments[0][0], "Loading");
            spinner.UTAccessible.info.description = "Sending";
            tryCompare(announcements, "count", 2);
            compare(announcements.signalArguments[1][0], "Sending");
            spinner.isTextChangedSayEnabled = false;
            spinner.UTAccessible.info.description = "";
            hidden.visible = true;
            tryCompare(announcements, "count", 3);
            compare(announcements.signalArguments[2][0], "Loading");
            compareProperties(spinner, { "Accessible.name": "Loading", "Accessible.description": "0 percent", "Accessible.role": Accessible.ProgressBar });
            compare(Array.from(spinner.UTAccessible.supportedKeys), [AccessibleConstants.description]);
        }

        function test_reminder() {
            const spinner = make("UTSpinner", { spinnerType: UTSpinner.Waiting });
            tryCompare(announcements, "count", 1);
            const announcer = make("UTAnnounceLabel", { delay: true, isTextChangedSayEnabled: false, text: "again" });
            const motion = make("SpinnerMotion", { spinner: spinner, announcer: announcer }, spinner);
            compareProperties(motion, { interval: 50, repeat: true, running: true });
            compareProperties(motion.reminder, { interval: 10000, repeat: true, running: true });
            motion.reminder.triggered();
            compare(announcements.count, 1); // later
            tryCompare(announcements, "count", 2);
            compare(announcements.signalArguments.map(c => c[0]), ["Loading", "again"]);
            for (const [change, isRunning] of [[{ sayAccessible: false }, [true, false]], [{ sayAccessible: true, visible: false }, [false, false]],
                                               [{ visible: true, spinnerType: UTSpinner.Loading }, [false, false]]]) {
                Object.assign(spinner, change);
                compare([motion.running, motion.reminder.running], isRunning);
            }
        }

        function test_tiny() {
            for (const width of [0, 1, 2, -5])
                waitForRendering(make("UTSpinner", { spinnerType: UTSpinner.Progress, currentValue: 40, width: width }) && root, 50);
        }
    }

    ToolkitTestCase {
        name: "Labels"

        function cleanup() {
            wait(0); // what is to be said later is said
            announcements.clear();
            ThemeManager.theme = "light";
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
                wait(0);
                announcements.clear();
                Object.assign(label, data.change);
                if (isDelayed)
                    compare(announcements.count, 0);
                wait(0);
                compare(announcements.signalArguments.map(call => call[0]), data.said);
                compare(label.Accessible.focused, announcements.count > 0 || (data.settings.text ?? "") !== "" && data.settings.enabled !== false);
            }
        }

        function test_toolTip() {
            const label = make("UTLabel", { text: "text" });
            compareProperties(label, { toolTip: null, tooltipEnabled: true, color: App.getColorSet("label-primary-text").normal });
            label.toolTipText = "tip";
            mouseMove(root, 290, 290);
            verify(!label.toolTip.active);
            mouseMove(label, 5, 5);
            tryVerify(() => label.toolTip.active);
            compareProperties(label.toolTip, { tooltipText: "tip", isTooltipCustom: false });
            label.tooltipEnabled = false;
            verify(!label.toolTip.active);
        }
    }

    ToolkitTestCase {
        name: "UTDynamicResource"

        function test_sources_data() {
            const encoded = address => MediaPolicy.encode(address);
            // loaders: whether those of still images and of films are active.
            return table(["tag", "sources", "type", "isDirect", "loaders"], [
                ["none", [], 0, false, [false, false]],
                ["direct", [picture], 0, true, [true, false]],
                ["encoded", [encoded(picture)], 1, false, [true, false]],
                ["film", [encoded(film)], 2, false, [false, true]],
                ["dark alone", [MediaPolicy.encode("", film)], 0, false, [false, false]],
                ["film, then direct", [encoded(film), picture], 2, true, [true, true]],
                ["image, then film", [encoded(picture), encoded(film)], 2, false, [false, true]],
                ["film, then nothing", [encoded(film), ""], 2, false, [false, true]]
            ]);
        }

        function test_sources(data) {
            const resource = make("UTDynamicResource", { width: 60, height: 40 });
            for (const source of data.sources)
                resource.imageSource = source;
            compare([resource.UTDynamicResourceData.type, resource.usesDirectImageSource], [data.type, data.isDirect]);
            const loaders = Array.from(resource.children);
            compare(loaders.map(loader => loader.active), data.loaders);
            compare(loaders.map(loader => loader.visible), data.loaders);
        }

        function test_still() {
            const resource = make("UTDynamicResource", { width: 60, height: 40, imageFillMode: Image.Stretch, mirrorEnabled: true, fallbackImage: "qrc:/f" });
            listen(resource, "resourceLoaded");
            resource.imageSource = MediaPolicy.encode(picture);
            for (const [theme, isDark] of [["light", "false"], ["dark", "true"]]) {
                ThemeManager.theme = theme;
                compare(resource.resourceUrl, "image://dynamic/?imageProviderUrl=" + resource.imageSource + "&isDark=" + isDark + "&fallbackImage=qrc:/f");
            }
            tryCompare(spy, "count", 1);
            compare(Array.from(spy.signalArguments[0]), [320, 240]);
            const still = resource.children[0].item;
            compareProperties(still.image, { fillMode: Image.Stretch, mirror: true, visible: true, width: 60, height: 40 });
        }

        function test_stillPages() {
            const still = make("KDynamicImage", { width: 100, height: 50 });
            const spinner = still.children[0];
            compareProperties(spinner, { visible: true, width: 27, height: 27, "anchors.centerIn": still });
            compareProperties(still.image, { visible: false, fillMode: Image.PreserveAspectFit });
            still.showSpinner = false;
            verify(!spinner.visible);
            still.showSpinner = true;
            still.image.source = picture;
            tryVerify(() => still.image.visible && !spinner.visible);
            still.image.source = "";
            verify(still.image.visible && !spinner.visible, "never back");
        }

        function test_film() {
            const resource = make("UTDynamicResource", { width: 60, height: 40, imageSource: MediaPolicy.encode(film), imageFillMode: Image.PreserveAspectCrop, mirrorEnabled: true });
            const animated = resource.children[1].item;
            tryVerify(() => animated.image.movie);
            compareProperties(animated.image, { fillMode: Image.PreserveAspectCrop, mirror: true, visible: true, width: 60, height: 40 });
        }

        // The film is square.
        function test_aspectRatio_data() {
            return table(["tag", "width", "height", "keeps", "size"], [
                ["wide", 100, 40, true, [40, 40]],
                ["high", 30, 90, true, [30, 30]],
                ["the film's own", 50, 50, true, [50, 50]],
                ["not kept", 100, 40, false, [100, 40]],
                ["empty", 0, 0, true, [0, 0]]
            ]);
        }

        function test_aspectRatio(data) {
            const animated = make("KDynamicAnimatedImage", { width: data.width, height: data.height, keepAspectRatio: data.keeps, source: film });
            tryVerify(() => animated.image.movie);
            compare([animated.image.width, animated.image.height], data.size);
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
            compareProperties(cover, { width: 120, height: 120, "image.fillMode": Image.PreserveAspectCrop, "image.horizontalAlignment": Image.AlignLeft, "image.verticalAlignment": Image.AlignTop });
            cover.controller.imageSource = picture;
            tryCompare(cover.image, "status", Image.Ready);
            cover.controller.fetch("qrc:/Resources/empty-inbox.svg");
            verify(cover.image.source.toString().startsWith("image://dynamic/"));
            tryCompare(cover.image, "status", Image.Ready);
        }
    }

    ToolkitTestCase {
        name: "KSvgSequenceAnimated"

        function test_frames() {
            const film = make("KSvgSequenceAnimated");
            compareProperties(film, { width: 12, height: 12, frameCount: 1, currentFrame: 0, frameDuration: 200, running: true, source: Qt.url("") });
            verify(film.loops < 0);
            film.imagePrefixName = "audio-wave-";
            compare(film.source, Qt.url("qrc:/Resources/audio-wave-0.svg"));
            film.svgColorSetName = "text-primary";
            compare(film.source, Qt.url("image://svg/%1/audio-wave-0".arg(App.getColorSet("text-primary").normal)));

            const one = make("KSvgSequenceAnimated", { imagePrefixName: "audio-wave-", frameDuration: 10 });
            const four = make("KSvgSequenceAnimated", { imagePrefixName: "audio-wave-", frameDuration: 10, frameCount: 4 });
            listen(one, "currentFrameChanged");
            for (const frame of [3, 0, 2])
                tryCompare(four, "currentFrame", frame);
            compare(spy.count, 0);
            four.running = false;
            const none = make("KSvgSequenceAnimated", { imagePrefixName: "audio-wave-", frameCount: 0 });
            tryCompare(none, "currentFrame", 0);
        }
    }

    ToolkitTestCase {
        name: "UTWatermark"

        function test_grid_data() {
            return table(["tag", "width", "height", "settings"], [
                ["wide", 300, 100, {}],
                ["high", 100, 300, {}],
                ["size told", 200, 200, { watermarkSize: UTWatermarkEnum.Large }],
                ["other way", 200, 200, { rotationAngle: 30 }],
                ["straight", 200, 200, { rotationAngle: 0 }],
                ["no room", 0, 0, {}]
            ]);
        }

        function test_grid(data) {
            const ground = createTemporaryQmlObject("import QtQuick; Item { width: %1; height: %2 }".arg(data.width).arg(data.height), root);
            const watermark = make("UTWatermark", Object.assign({ contentText: "secret" }, data.settings), ground);
            const angle = Math.abs(data.settings.rotationAngle ?? -15) * Math.PI / 180;
            const width = Math.round(data.width / Math.cos(angle) + data.height * Math.sin(angle));
            const height = Math.round((data.height + data.width * Math.tan(angle)) * Math.cos(angle));
            fuzzyCompare(watermark.actualWidth, width, 1);
            fuzzyCompare(watermark.actualHeight, height, 1);
            compareProperties(watermark, { clip: true, customOpacity: 0.1, rotationAngle: data.settings.rotationAngle ?? -15 });

            const [measure, grid] = Array.from(watermark.children);
            compareProperties(measure, { visible: false, text: "secret", "font.pointSize": 16 });
            const rows = Array.from(grid.children).filter(row => row.spacing === 72);
            compare(rows.length, Math.ceil(watermark.actualHeight / (measure.height + 100)));
            for (const [i, row] of rows.entries()) {
                const cells = Array.from(row.children).filter(cell => cell.opacity === 0.1);
                compare(cells.length, Math.ceil(watermark.actualWidth / (measure.width + 72)));
                compare(row.leftPadding, i % 2 * (measure.width + 72) / 2);
                compareProperties(cells[0], { width: measure.width + 72, height: measure.height + 100 });
                const [black, white] = Array.from(cells[0].children);
                compareProperties(black, { color: "#000000", x: cells[0].width - black.width - 1, y: cells[0].height - black.height - 1 });
                compareProperties(white, { color: "#ffffff", x: cells[0].width - white.width, y: cells[0].height - white.height, "font.pointSize": 16 });
            }
        }

        function test_empty() {
            compare(make("UTWatermark").children[1].height, 0);
        }
    }
}
