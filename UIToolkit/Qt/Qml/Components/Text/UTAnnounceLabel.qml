/*!
    A label that screen readers speak when it shows, when its text changes and when told to. It need not be visible.

    \qml
    UTAnnounceLabel { visible: false; text: qsTr("%1 results").arg(results.count) }
    \endqml
*/
import QtQuick
import Korvu 1.0

UTLabel {
    id: control

    //! Speaks the text without its formatting.
    property bool isFormattingRemoved
    property bool isTextChangedSayEnabled: true
    //! Speaks in the next turn of the event loop, and once for all that happened until then.
    property bool delay

    //! Speaks the text, unless the label is disabled.
    function sayAccessible(): void {
        if (!enabled)
            return;
        Accessible.focused = true;
        UIToolKitUtils.sayAccessible(control, isFormattingRemoved ? Utils.removeFormatting(text) : text);
    }

    //! The same, now or later as delay says.
    function announce(): void {
        if (delay)
            Qt.callLater(sayAccessible);
        else
            sayAccessible();
    }

    onTextChanged: {
        if (isTextChangedSayEnabled && control.text.length > 0)
            announce();
    }
    onVisibleChanged: {
        if (visible)
            announce();
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
