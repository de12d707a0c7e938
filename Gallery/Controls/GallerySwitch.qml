/*! A switch with its text at the start of the line. To be replaced by the library's own switch when there is one. */
import QtQuick
import QtQuick.Templates as T
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

T.Switch {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.controlHeight, implicitContentHeight)
    leftPadding: mirrored ? implicitIndicatorWidth + Metrics.medium : 0
    rightPadding: mirrored ? 0 : implicitIndicatorWidth + Metrics.medium
    font: FontConstants.bodySecondary
    hoverEnabled: true

    indicator: KFrame {
        readonly property int inset: 3

        x: control.mirrored ? 0 : control.width - width
        anchors.verticalCenter: parent?.verticalCenter
        implicitWidth: 36
        implicitHeight: 20
        radius: height / 2
        controlsTarget: control
        backgroundColorSetName: control.checked ? "toggle-toggled-background" : "toggle-untoggled-background"
        borderColorSetName: control.checked ? "toggle-toggled-border" : "toggle-untoggled-border"

        KRectangle {
            readonly property bool isAtEnd: control.checked !== control.mirrored

            x: isAtEnd ? parent.width - width - parent.inset : parent.inset
            anchors.verticalCenter: parent.verticalCenter
            width: parent.height - 2 * parent.inset
            height: width
            radius: width / 2
            controlsTarget: control
            backgroundColorSetName: control.checked ? "toggle-toggled-thumb-tint" : "toggle-untoggled-thumb-tint"

            Behavior on x {
                enabled: !App.animationsDisabled

                NumberAnimation { duration: 100 }
            }
        }
    }
    contentItem: GalleryText {
        text: control.text
        font: control.font
        wrapMode: Text.Wrap
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    Keys.onReturnPressed: toggle()
    Keys.onEnterPressed: toggle()

    FocusRing { innerFocusBorder: false }

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.onPressAction: toggle()
    Accessible.onToggleAction: toggle()
}
