/*!
    A button with an icon, a text and a badge, each if there is one.

    \qml
    UTBadgeButton { iconName: "chat-bold"; buttonText: "Replies"; badgeText: "3" }
    \endqml
*/
import QtQuick
import Korvu 1.0

KButton {
    id: control

    //! Icon name; empty for none.
    property string iconName
    property string buttonText
    property string badgeText
    property string iconColorSetName: textColorSetName
    //! In pixels.
    property real iconHeight: 14
    property real iconWidth: 14
    //! Widest that the badge's text may be, in pixels; a longer one is elided.
    property real maxTextWidth: 14
    property bool badgeVisible: true

    text: buttonText
    textColorSetName: "button-ghost-text"
    backgroundColorSetName: "button-ghost-background"
    radius: 4

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            height: implicitHeight
            spacing: 6

            KSvgIcon {
                anchors.verticalCenter: parent.verticalCenter
                width: control.iconWidth
                height: control.iconHeight
                sourceSize: Qt.size(width, height)
                visible: control.iconName.length > 0
                svgName: control.iconName
                svgColor: control.stateColor((ThemeManager.globalTheme, App.getColorSet(control.iconColorSetName, control.themeType)))
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.buttonText.length > 0
                text: control.buttonText
                font: control.font
                color: control.stateColor(control.textColorSet)
            }
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.badgeVisible && control.badgeText.length > 0
                width: Math.max(height, badge.width + 8)
                height: Math.max(16, badge.implicitHeight)
                radius: height / 2
                color: control.stateColor((ThemeManager.globalTheme, App.getColorSet("button-accent-fill-background", control.themeType)))

                Text {
                    id: badge

                    anchors.centerIn: parent
                    width: Math.min(implicitWidth, control.maxTextWidth * App.textScale)
                    text: control.badgeText
                    font: FontConstants.tagLabelSecondary
                    color: control.stateColor((ThemeManager.globalTheme, App.getColorSet("button-accent-fill-text", control.themeType)))
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignHCenter
                }
            }
        }
    }

    Accessible.description: badgeVisible ? badgeText : ""
}
