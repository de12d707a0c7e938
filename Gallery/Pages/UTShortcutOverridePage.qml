import QtQuick
import Gallery

GalleryPage {
    id: page

    category: qsTr("Events")
    description: qsTr("Characters of AltGr, which are Ctrl+Alt on many keyboards, are typed where a shortcut has the same keys.")

    Shortcut {
        sequences: ["Ctrl+Alt+Q", "Ctrl+Alt+E", "Ctrl+Alt+F1"]
        onActivated: page.log(qsTr("a shortcut was activated"))
    }
    Sheet {
        title: qsTr("Shortcuts Ctrl+Alt+Q, Ctrl+Alt+E and Ctrl+Alt+F1")
        text: qsTr("With a keyboard layout that has characters on these keys, the first field types them and the second loses them. The function key has none, so it works in both.")
        minimumCellWidth: 240

        Cell {
            label: qsTr("With the override")

            UTTextFieldBase { name: qsTr("With the override"); prompt: qsTr("Type here"); onTextEdited: page.log(qsTr("typed \"%1\"").arg(text)) }
        }
        Cell {
            label: qsTr("Without")

            GalleryTextField { name: qsTr("Without"); prompt: qsTr("Type here"); onTextEdited: page.log(qsTr("typed \"%1\"").arg(text)) }
        }
    }
}
