/*!
    A plain button in the colours of colour sets of one's choice.

    \qml
    KButton { text: "Retry"; radius: 4; isRectangle: true; tooltip: "Send the message again"; onClicked: message.send() }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property string backgroundColorSetName: "button-primary"
    //! Empty, the default, for no border.
    property string borderColorSetName
    property string textColorSetName: "buttonText-primary"
    //! Of the border while the keyboard focus is on the button.
    property string focusColorSetName: "focus-border"
    //! Where the label lies, values of Text's alignments.
    property int horizontalAlignment: Text.AlignLeft
    property int verticalAlignment: Text.AlignVCenter
    //! In pixels.
    property real borderWidth: 1
    property real radius
    //! Gives the button square corners, whatever its radius.
    property bool isRectangle
    //! Shows the button as pressed, as while what it opened is open.
    property bool isPressed
    //! The label, for what is not said here of it: elide, wrapMode, textFormat. Null where the content is another.
    readonly property Text label: contentItem as Text

    readonly property kColorSet backgroundColorSet: ThemeManager.globalTheme, App.getColorSet(backgroundColorSetName, themeType)
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(textColorSetName, themeType)

    horizontalPadding: 12
    verticalPadding: 6
    font: FontConstants.bodySecondary

    background: Rectangle {
        radius: control.isRectangle ? 0 : control.radius
        color: Script.plainColor(control, control.backgroundColorSet)
        border.width: 0
        onColorChanged: {
            if (ThemeManager.isHighContrastTheme)
                Script.needBorder(control);
        }
    }
    contentItem: ButtonLabel { control: control }

    onBorderColorSetNameChanged: Script.needBorder(control)
    onActiveFocusChanged: Script.needBorder(control)
}
