/*!
    A plain button in the colours of colour sets of one's choice.

    \qml
    KButton { text: "Retry"; radius: 4; isRectangle: true; tooltip: "Send the message again"; onClicked: message.send() }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

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
    property real radius: 0
    //! Gives the button square corners, whatever its radius.
    property bool isRectangle: false
    //! Shows the button as pressed, as while what it opened is open.
    property bool isPressed: false
    //! The label, for what is not said here of it: elide, wrapMode, textFormat. Null where the content is another.
    readonly property Text label: contentItem as Text

    readonly property kColorSet backgroundColorSet: ThemeManager.globalTheme, App.getColorSet(backgroundColorSetName, themeType)
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(textColorSetName, themeType)

    //! The colour of \a colorSet for the state of the button.
    function stateColor(colorSet: var): color {
        return isPressed && enabled && colorSet.isValid ? colorSet.pressed : ThemeUtils.getColor(control, colorSet);
    }

    horizontalPadding: 12
    verticalPadding: 6
    font: FontConstants.bodySecondary

    background: Rectangle {
        readonly property bool showsFocus: control.activeFocus && App.isKeyboardFocus
        readonly property string borderSetName: showsFocus ? control.focusColorSetName : control.borderColorSetName

        radius: control.isRectangle ? 0 : control.radius
        color: control.stateColor(control.backgroundColorSet)
        border.width: borderSetName.length === 0 ? 0 : showsFocus ? Math.max(2, control.borderWidth) : control.borderWidth
        border.color: borderSetName.length === 0 ? "transparent"
            : control.stateColor((ThemeManager.globalTheme, App.getColorSet(borderSetName, control.themeType)))
    }
    contentItem: Text {
        text: control.text
        font: control.font
        color: control.stateColor(control.textColorSet)
        elide: Text.ElideRight
        horizontalAlignment: control.horizontalAlignment
        verticalAlignment: control.verticalAlignment
    }
}
