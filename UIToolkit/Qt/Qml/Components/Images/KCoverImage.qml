/*!
    The picture of a cover, cropped to fill it.

    \qml
    KCoverImage { controller.imageSource: "qrc:/Resources/sample-landscape.png" }
    \endqml
*/
import QtQuick
import Korvu 1.0

Item {
    //! The KCoverImageController that knows the picture.
    property alias controller: coverController
    property alias image: image

    width: 120
    height: 120

    KImage {
        id: image

        anchors.fill: parent
        fillMode: Image.PreserveAspectCrop
        horizontalAlignment: Image.AlignLeft
        verticalAlignment: Image.AlignTop
        source: coverController.imageSource
    }
    KCoverImageController {
        id: coverController
    }
}
