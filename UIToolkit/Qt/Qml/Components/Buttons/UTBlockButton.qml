/*!
    A button that takes a whole block of a card or a message: a title, and below it what there is to know before one
    presses it. The text is shown whatever it is, plain or rich.

    \qml
    UTBlockButton {
        width: parent.width
        text: "Design review\nTuesday, 10:00 to 11:00"
        onClicked: calendar.open(meeting)
    }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! The item that hosts the focus ring; the top-most ancestor when undefined.
    property var focusDesignatedParent

    onFocusRingWanted: settings => Object.assign(settings, {
        isRectangle: true,
        cornerRadius: () => priv.cornerRadius,
        designatedParent: () => control.focusDesignatedParent,
        themeType: () => control.themeType
    })

    UTBlockButtonData.originalText: text
    UTBlockButtonData.font: FontConstants.bodySecondary
    UTBlockButtonData.accentTextColor: ThemeUtils.getColor(control, priv.accentColorSet)
    UTBlockButtonData.secondaryTextColor: ThemeUtils.getColor(control, priv.secondaryColorSet)

    horizontalPadding: 12
    verticalPadding: 8

    background: KFrame {
        themeType: control.themeType
        controlsTarget: control
        radius: priv.cornerRadius
        backgroundColorSetName: "button-block-background"
        borderColorSetName: "button-block-border"
    }
    contentItem: Text {
        text: control.UTBlockButtonData.displayText
        textFormat: Text.StyledText
        font: control.UTBlockButtonData.font
        color: control.UTBlockButtonData.secondaryTextColor
        horizontalAlignment: Text.AlignLeft // on the right where the layout is mirrored
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        maximumLineCount: priv.maximumLineCount
        elide: Text.ElideRight
    }

    // Where the base named it by its text as it is.
    onTooltipChanged: {
        if (Accessible.name === (text || tooltip))
            Accessible.name = Qt.binding(() => control.UTBlockButtonData.accessibleText || control.tooltip);
    }

    Accessible.name: UTBlockButtonData.accessibleText || tooltip

    QtObject {
        id: priv

        readonly property int cornerRadius: 8
        readonly property int maximumLineCount: 4
        readonly property kColorSet accentColorSet: ThemeManager.globalTheme, App.getColorSet("hyperlink-accent-text", control.themeType)
        readonly property kColorSet secondaryColorSet: ThemeManager.globalTheme, App.getColorSet("button-block-text", control.themeType)
    }
}
