/*!
    A ring that shows how far something has come, or that it goes on.

    \qml
    UTSpinner { spinnerType: UTSpinner.Progress; currentValue: 100 * upload.sent / upload.size }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

Canvas {
    id: control

    enum SpinnerType {
        Progress,
        Loading,
        Waiting
    }

    //! A SpinnerType; -1 for none, which paints nothing.
    property int spinnerType: -1
    //! Percent. While the spinner waits it turns this itself.
    property real currentValue
    //! Whether a waiting spinner speaks every ten seconds.
    property bool sayAccessible: true
    //! Whether a check mark shows in a ring that is full.
    property bool completeCheckMarkEnabled: true
    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Whether a change of the description is spoken.
    property alias isTextChangedSayEnabled: announcer.isTextChangedSayEnabled

    //! The value reached 100; a waiting spinner never gets there.
    signal spinnerCompleted()

    UTAccessible.supportedKeys: [AccessibleConstants.description]

    width: 32
    height: 32

    onCurrentValueChanged: {
        // The last step does not paint: the check mark stands for it.
        if (currentValue >= 0 && currentValue < 100)
            requestPaint();
        else if (currentValue === 100 && spinnerType !== UTSpinner.Waiting)
            spinnerCompleted();
    }
    onSpinnerTypeChanged: {
        priv.makeMotion();
        requestPaint();
    }
    onVisibleChanged: priv.makeMotion()
    onEnabledChanged: requestPaint()
    onPaint: {
        const context = getContext("2d");
        context.clearRect(0, 0, width, height);
        const centre = width / 2;
        const radius = (width - priv.lineWidth) / 2;
        if (radius <= 0)
            return;
        const start = -Math.PI / 2;
        const cursor = start + currentValue / 100 * 2 * Math.PI;
        const isWaiting = spinnerType === UTSpinner.Waiting;
        const quarter = cursor + Math.PI / 2;
        const arcs = [
            [priv.trackColorSet, isWaiting ? quarter : cursor, isWaiting ? cursor : start + 2 * Math.PI],
            [priv.isComplete ? priv.completionColorSet : priv.cursorColorSet, isWaiting ? cursor : start, isWaiting ? quarter : cursor]
        ];
        context.lineWidth = priv.lineWidth;
        for (const [colorSet, from, to] of arcs) {
            context.strokeStyle = ThemeUtils.getColor(control, colorSet);
            context.beginPath();
            context.arc(centre, centre, radius, from, to);
            context.stroke();
        }
    }

    Accessible.role: spinnerType === UTSpinner.Waiting ? Accessible.Animation : Accessible.ProgressBar
    Accessible.name: announcer.text
    Accessible.description: spinnerType === UTSpinner.Waiting ? "" : qsTr("%1 percent").arg(Math.floor(currentValue))

    // Not to be seen, but there: what shows with the spinner is spoken.
    UTAnnounceLabel {
        id: announcer

        opacity: 0
        enabled: control.visible
        delay: true
        text: control.UTAccessible.info.description || qsTr("Loading")

        Accessible.ignored: true
    }

    QtObject {
        id: priv

        // By type; any other type has no colours.
        readonly property list<string> cursorNames: ["spinner-progress-cursor", "spinner-loading-cursor", "spinner-loading-cursor"]
        readonly property list<string> trackNames: ["spinner-progress-track", "spinner-loading-track", "spinner-loading-track"]
        readonly property kColorSet cursorColorSet: ThemeManager.globalTheme, App.getColorSet(cursorNames[control.spinnerType] ?? "", control.themeType)
        readonly property kColorSet trackColorSet: ThemeManager.globalTheme, App.getColorSet(trackNames[control.spinnerType] ?? "", control.themeType)
        readonly property kColorSet completionColorSet: ThemeManager.globalTheme, App.getColorSet("banner-style-success-text", control.themeType)
        readonly property bool isComplete: control.spinnerType === UTSpinner.Progress && control.currentValue === 100
        readonly property bool isCheckMarkVisible: control.completeCheckMarkEnabled && isComplete
        readonly property int lineWidth: 2
        readonly property size checkMarkSize: Qt.size(20, 20)
        property Timer motion: null
        property Item checkMark: null

        onCursorColorSetChanged: control.requestPaint()
        onTrackColorSetChanged: control.requestPaint()
        onCompletionColorSetChanged: control.requestPaint()
        onIsCheckMarkVisibleChanged: makeCheckMark()

        function makeMotion(): void {
            if (!motion && control.spinnerType === UTSpinner.Waiting && control.visible)
                motion = Qt.createComponent("SpinnerMotion.qml").createObject(control, { spinner: control, announcer: announcer }) as Timer;
        }

        function makeCheckMark(): void {
            if (checkMark || !isCheckMarkVisible)
                return;
            checkMark = Qt.createComponent("UTSvgResource.qml").createObject(control, {
                svgName: "check-bold",
                asynchronous: false, // there at once, also in another colour
                sourceSize: checkMarkSize,
                svgColor: Qt.binding(() => ThemeUtils.getColor(control, priv.completionColorSet)),
                visible: Qt.binding(() => priv.isCheckMarkVisible),
                "anchors.centerIn": control
            }) as Item;
        }
    }
}
