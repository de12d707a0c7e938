/*!
    A line across its parent.

    \qml
    Column { KText { text: "Above" } KSeparator {} KText { text: "Below" } }
    \endqml
*/
KRectangle {
    width: parent ? parent.width : 0
    height: 1
    backgroundColorSetName: "legacy-separator-primary"
}
