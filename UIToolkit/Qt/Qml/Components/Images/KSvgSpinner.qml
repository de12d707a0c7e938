/*!
    A turning spinner; visible it turns, hidden it rests upright.

    \qml
    KSvgSpinner { visible: loading; width: 27; height: 27 }
    \endqml
*/
import QtQuick

Image {
    id: control

    //! Time of one turn in milliseconds.
    property int rotateDuration: 1000

    function updateState(): void {
        state = visible ? "rotate" : "stopped";
    }

    width: 16
    height: 16
    sourceSize: Qt.size(width, height)
    source: "qrc:/Resources/spinner.svg"

    onVisibleChanged: updateState()
    Component.onCompleted: updateState()

    states: [
        State {
            name: "rotate"

            PropertyChanges {
                control.rotation: 1
            }
        },
        State {
            name: "stopped"

            PropertyChanges {
                control.rotation: 0
            }
        }
    ]
    transitions: [
        Transition {
            to: "rotate"

            RotationAnimation {
                target: control
                from: 0
                to: 360
                duration: control.rotateDuration
                loops: Animation.Infinite
            }
        },
        Transition {
            to: "stopped"
            enabled: false
        }
    ]
}
