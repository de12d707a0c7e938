/*! A scroll bar that takes no room. To be replaced by the library's own when there is one. */
import QtQuick
import QtQuick.Templates as T
import UIToolkitQml 1.0

T.ScrollBar {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2
    visible: size < 1
    focusPolicy: Qt.NoFocus
    hoverEnabled: true

    contentItem: KRectangle {
        implicitWidth: control.hovered || control.pressed ? 8 : 4
        implicitHeight: implicitWidth
        radius: Math.min(width, height) / 2
        controlsTarget: control
        backgroundColorSetName: control.hovered || control.pressed ? "indentationBar-default" : "slider-track-empty-background"
    }

    Accessible.ignored: true
}
