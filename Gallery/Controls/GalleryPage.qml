/*!
    The base of every page. A page's file is named as the component it shows, and says its category and description in
    plain qsTr("...") lines, for they are read from the source.

    \qml
    GalleryPage {
        id: page

        category: qsTr("Surfaces")
        description: qsTr("A rectangle painted from a colour set.")
        controls: [ PropertySlider { id: radius; label: "radius"; to: 32; value: 8 } ]

        Playground { KRectangle { width: 200; height: 100; radius: radius.value } }
    }
    \endqml
*/
import QtQuick
import Gallery

Column {
    id: control

    property string category
    property string description
    //! Controls for the properties of the example, shown beside the page.
    property list<Item> controls

    signal logged(text: string)

    //! Lists \a text among the events.
    function log(text: string): void {
        logged(text);
    }

    width: parent?.width ?? 0
    spacing: Metrics.huge
    padding: 0
}
