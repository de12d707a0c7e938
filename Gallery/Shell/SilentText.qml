/*!
    A text of the panel that shows what a screen reader is told. It says nothing to one as it comes and goes: what it said
    would be listed, and so on for ever.
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

Text {
    property string textColorSetName: "text-primary"
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(textColorSetName, "global")

    color: textColorSet.normal
    font: FontConstants.bodySecondary
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
}
