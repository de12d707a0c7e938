/*!
    Text in a colour set's colour for the state of its target, with its role and name for assistive technology.

    \qml
    KText { text: "Hello"; textColorSetName: "text-secondary"; elide: Text.ElideRight }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

Text {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    property var controlsTarget: control
    property string textColorSetName: "text-primary"
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(textColorSetName, themeType)
    //! Text with emoji characters; writing it sets text, which breaks a binding on text.
    property string textWithEmojis
    //! The text with its emoji images turned back into characters.
    readonly property string textWithEWJEmojis: Utils.replaceImagesByEWJEmojis(text)
    property string accessibleText: text
    readonly property bool empty: text.length === 0
    property string toolTipText: text
    //! Moves focus away and back when the text changes, so that assistive technology reads it again.
    property bool refocusOnTextChange
    //! Whether the control that this text belongs to shows its focus; a truncated text then shows its tool tip.
    property bool isParentGotVisualFocus
    property alias textMouseArea: mouseArea

    //! Sets text to \a emojiText, in rich text with the emoji as images; breaks a binding on text.
    function setTextWithEmojis(emojiText: string): void {
        text = textFormat === Text.RichText
            ? Utils.replaceEWJEmojisByImages(emojiText, FontConstants.lineHeight(font))
            : emojiText;
    }

    color: ThemeUtils.getColor(controlsTarget, textColorSet)
    font: FontConstants.bodySecondary
    leftPadding: 12
    rightPadding: 12

    onTextWithEmojisChanged: setTextWithEmojis(textWithEmojis)
    onTextChanged: {
        if (!refocusOnTextChange)
            return;
        // Most texts never do this, so the item that takes the focus meanwhile is made when needed.
        const stopover = Qt.createComponent("KItem.qml").createObject(control, { width: 1, height: 1 }) as Item;
        stopover.forceActiveFocus();
        control.forceActiveFocus();
        stopover.destroy();
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: accessibleText

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        hoverEnabled: true
        propagateComposedEvents: true
    }
}
