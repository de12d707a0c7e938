/*!
    The plain look of a tool tip: a small rectangle. UTToolTip makes it while it shows.

    \qml
    NativeToolTip { tooltipText: "Mute" }
    \endqml
*/
import QtQuick

KFrame {
    id: control

    property string tooltipText
    //! Of the text, in pixels.
    property int maximumWidth: 300
    //! Below 1 there is no limit.
    property int maximumLineCount: 3

    width: Math.max(text.lineWidth + 2 * priv.horizontalMargin, priv.minimumSize)
    height: Math.max(Math.ceil(text.height) + 2 * priv.verticalMargin, priv.minimumSize)
    backgroundColorSetName: "panel-tertiary-background"
    borderColorSetName: "modal-primary-border"

    KText {
        id: text

        // Of the longest line; a text of several lines takes more for itself. Whole pixels, as the window has.
        readonly property int lineWidth: Math.ceil(Math.min(width, contentWidth))

        x: priv.horizontalMargin - (effectiveHorizontalAlignment === Text.AlignRight ? width - lineWidth : 0)
        y: priv.verticalMargin
        width: Math.min(implicitWidth, control.maximumWidth)
        leftPadding: 0
        rightPadding: 0
        text: control.tooltipText
        // Names of people and files may look like markup, and are none.
        textFormat: Text.PlainText
        themeType: control.themeType
        textColorSetName: "label-primary-text"
        font: FontConstants.bodyTertiary
        // A word that is too long for a line is broken too, else it would leave the tool tip.
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        maximumLineCount: control.maximumLineCount > 0 ? control.maximumLineCount : priv.unlimited
        textMouseArea.enabled: false

        Accessible.ignored: true
    }

    Accessible.role: Accessible.ToolTip
    Accessible.name: tooltipText

    QtObject {
        id: priv

        readonly property int unlimited: 2147483647
        readonly property int minimumSize: 20
        readonly property int horizontalMargin: 4
        readonly property int verticalMargin: 2
    }
}
