/*!
    An image that loads in the background, with a spinner meanwhile if wanted.

    \qml
    KImage { source: contact.picture; hasSpinner: true; width: 64; height: 64 }
    \endqml
*/
import QtQuick

Image {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var controlsTarget: control
    property bool hasSpinner
    //! Whether there is a spinner and nothing to show in its place yet.
    readonly property bool isSpinnerVisible: hasSpinner && (source.toString().length === 0 || status !== Image.Ready)

    //! The spinner, once there has been one.
    property Item spinner: null

    asynchronous: true

    // Icons are images too, and hardly one in a hundred spins.
    onHasSpinnerChanged: {
        if (hasSpinner && !spinner)
            spinner = Qt.createComponent("KSpinner.qml").createObject(control, { visible: Qt.binding(() => isSpinnerVisible) });
    }
}
