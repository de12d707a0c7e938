/*!
    An SVG picture of the host's resources, drawn at the size that it is shown.

    \qml
    KSvgImage { svgName: "empty-inbox"; height: 120 }
    \endqml
*/
import QtQuick

KImage {
    property string svgName

    width: height
    height: 200
    sourceSize: Qt.size(width, height)
    antialiasing: true
    mipmap: true
    smooth: true
    source: svgName.length > 0 ? "qrc:/Resources/%1.svg".arg(svgName) : ""
}
