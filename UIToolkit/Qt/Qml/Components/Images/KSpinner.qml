/*!
    A turning wheel in the middle of its parent, at rest while nobody sees it.

    \qml
    Item { KSpinner { visible: loading } }
    \endqml
*/
import QtQuick
import Korvu 1.0

AnimatedImage {
    anchors.centerIn: parent
    paused: !visible
    source: "qrc:///Resources/%1.gif".arg(ThemeManager.isDarkTheme ? "coverImageSpinnerDark" : "coverImageSpinner")
}
