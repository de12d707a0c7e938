/*! A slider. To be replaced by the library's own slider when there is one. */
import QtQuick
import QtQuick.Templates as T
import UIToolkitQml 1.0
import Gallery

T.Slider {
    id: control

    //! What it sets, for assistive technology.
    property string name

    readonly property int trackHeight: 4
    readonly property int handleSize: 18
    // Assistive technology reads the range under these names.
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    implicitHeight: Metrics.rowHeight
    snapMode: T.Slider.SnapAlways
    hoverEnabled: true

    background: KRectangle {
        x: control.leftPadding
        anchors.verticalCenter: parent?.verticalCenter
        width: control.availableWidth
        height: control.trackHeight
        radius: height / 2
        controlsTarget: control
        backgroundColorSetName: "slider-track-empty-background"

        KRectangle {
            x: control.mirrored ? parent.width - width : 0
            width: control.position * parent.width
            height: parent.height
            radius: parent.radius
            controlsTarget: control
            backgroundColorSetName: "slider-track-indicator-background"
        }
    }
    handle: KFrame {
        x: control.leftPadding + control.visualPosition * (control.availableWidth - width)
        anchors.verticalCenter: parent?.verticalCenter
        implicitWidth: control.handleSize
        implicitHeight: control.handleSize
        radius: height / 2
        borderWidth: 2
        controlsTarget: control
        backgroundColorSetName: "slider-handle-background"
        borderColorSetName: "slider-handle-border"
    }

    FocusRing { innerFocusBorder: false }

    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.onIncreaseAction: increase()
    Accessible.onDecreaseAction: decrease()
}
