/*! What page is shown, and how: theme, direction, size of text, animations. */
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

KRectangle {
    id: control

    property bool isDrawerShown: true

    signal drawerToggled

    implicitHeight: Math.max(Metrics.barHeight, titles.height + switches.height + 2 * Metrics.medium + Metrics.small)
    backgroundColorSetName: "background-primary"

    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Appearance")

    Column {
        id: titles

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            leftMargin: Metrics.huge
            rightMargin: Metrics.huge
            topMargin: Metrics.medium
        }
        spacing: 2

        GalleryText {
            width: parent.width
            text: Session.page
            font: FontConstants.title
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        GalleryText {
            width: parent.width
            text: Session.pageDescription
            wrapMode: Text.Wrap
            textColorSetName: "text-secondary"
        }
    }
    Flow {
        id: switches

        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            leftMargin: Metrics.huge
            rightMargin: Metrics.huge
            bottomMargin: Metrics.medium
        }
        spacing: Metrics.medium

        Segments {
            readonly property list<string> themes: ["light", "dark", "highContrast"]

            name: qsTr("Theme")
            texts: [qsTr("Light"), qsTr("Dark"), qsTr("High contrast")]
            icons: ["sun-bold", "moon-bold", "contrast-bold"]
            currentIndex: themes.indexOf(ThemeManager.globalTheme)
            onActivated: index => ThemeManager.theme = themes[index]
        }
        Segments {
            name: qsTr("Direction")
            texts: [qsTr("Left to right"), qsTr("Right to left")]
            icons: ["text-direction-ltr-bold", "text-direction-rtl-bold"]
            currentIndex: Session.rightToLeft ? 1 : 0
            onActivated: index => Session.rightToLeft = index === 1
        }
        Segments {
            readonly property list<real> scales: [0.85, 1, 1.25, 1.5]

            name: qsTr("Text size")
            texts: scales.map(scale => qsTr("%1 %").arg(Math.round(scale * 100)))
            currentIndex: scales.indexOf(App.textScale)
            onActivated: index => App.textScale = scales[index]
        }
        GallerySwitch {
            text: qsTr("Animations")
            checked: !App.animationsDisabled
            onToggled: App.animationsDisabled = !checked
        }
        UTRectangleToggleButton {
            buttonIcon: "side-bar-bold"
            tooltip: qsTr("Side panel")
            isChecked: control.isDrawerShown
            onToggled: control.drawerToggled()
        }
    }
    KSeparator {
        anchors.bottom: parent.bottom
    }
}
