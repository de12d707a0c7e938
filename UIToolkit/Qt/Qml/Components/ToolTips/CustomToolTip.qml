/*!
    The balloon look of a tool tip, with an arrow that points at the control. UTToolTip makes it while it shows.

    \qml
    CustomToolTip { tooltipText: "Mute"; arrowAnchor: UTTooltipEnum.Top; arrowAlignment: UTTooltipEnum.CenterAlignment }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UiElements 1.0

KBalloon {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property string tooltipText
    //! Of the balloon without its arrow, about; in pixels.
    property int maximumWidth: 308
    //! Below 1 there is no limit.
    property int maximumLineCount: 3
    //! Around the text, in pixels.
    property int textMargin: 12

    readonly property kColorSet backgroundColorSet: ThemeManager.globalTheme, App.getColorSet("popover-primary-background", themeType)
    readonly property kColorSet borderColorSet: ThemeManager.globalTheme, App.getColorSet("list-header-outline-secondary", themeType)

    width: Math.ceil(row.implicitWidth) + (priv.isAnchored(UTTooltipEnum.Left, UTTooltipEnum.Right) ? arrowSize : 0)
    height: Math.ceil(row.implicitHeight) + (priv.isAnchored(UTTooltipEnum.Top, UTTooltipEnum.Bottom) ? arrowSize : 0)
    arrowSize: 10
    radius: 8
    backgroundColor: backgroundColorSet.normal
    borderColor: borderColorSet.normal

    Item {
        id: row

        x: control.arrowAnchor === UTTooltipEnum.Left ? control.arrowSize : 0
        y: control.arrowAnchor === UTTooltipEnum.Top ? control.arrowSize : 0
        implicitWidth: text.lineWidth + 2 * control.textMargin
        implicitHeight: text.height + 2 * control.textMargin

        KText {
            id: text

            // Of the longest line; a text of several lines takes more for itself.
            readonly property real lineWidth: Math.min(width, contentWidth)

            x: control.textMargin - (effectiveHorizontalAlignment === Text.AlignRight ? width - lineWidth : 0)
            y: control.textMargin
            width: Math.min(implicitWidth, control.maximumWidth - priv.spareWidth)
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
    }

    Accessible.role: Accessible.ToolTip
    Accessible.name: tooltipText

    QtObject {
        id: priv

        readonly property int unlimited: 2147483647
        //! What maximumWidth leaves free beside the text.
        readonly property int spareWidth: 30

        function isAnchored(side: int, otherSide: int): bool {
            return control.arrowAnchor === side || control.arrowAnchor === otherSide;
        }
    }
}
