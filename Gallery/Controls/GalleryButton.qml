/*!
    A plain button with an icon, a text or both. To be replaced by the library's own button when there is one.
*/
import QtQuick
import QtQuick.Templates as T
import UIToolkitQml 1.0
import Gallery

T.Button {
    id: control

    property string iconName
    property string backgroundColorSetName: "button-ghost-background"
    property string borderColorSetName: "button-ghost-border"
    property string textColorSetName: "button-ghost-text"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.controlHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Metrics.medium
    rightPadding: Metrics.medium
    font: FontConstants.bodySecondarySemibold
    hoverEnabled: true

    background: KFrame {
        radius: Metrics.smallRadius
        controlsTarget: control
        backgroundColorSetName: control.backgroundColorSetName
        borderColorSetName: control.borderColorSetName
    }
    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            spacing: Metrics.small

            KSvgIcon {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.iconName.length > 0
                height: Metrics.iconSize
                svgName: control.iconName
                controlsTarget: control
                svgColorSetName: control.textColorSetName
            }
            GalleryText {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.text.length > 0 && control.display !== T.AbstractButton.IconOnly
                text: control.text
                font: control.font
                controlsTarget: control
                textColorSetName: control.textColorSetName
                Accessible.ignored: true
            }
        }
    }

    FocusRing {}

    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: click()
}
