/*!
    Moves a waiting UTSpinner and lets it speak from time to time. The spinner makes it when it first waits.

    \qml
    SpinnerMotion { spinner: control; announcer: label }
    \endqml
*/
import QtQuick

Timer {
    id: control

    required property UTSpinner spinner
    required property UTAnnounceLabel announcer
    readonly property bool isWaiting: spinner.spinnerType === UTSpinner.Waiting && spinner.visible
    readonly property Timer reminder: Timer {
        interval: 10000
        repeat: true
        running: control.isWaiting && control.spinner.sayAccessible
        onTriggered: control.announcer.announce()
    }

    interval: 50
    repeat: true
    running: isWaiting
    onTriggered: spinner.currentValue = (spinner.currentValue + 2.5) % 100
}
