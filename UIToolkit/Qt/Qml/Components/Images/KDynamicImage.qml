/*!
    An image with a spinner in its place until it has first loaded.

    \qml
    KDynamicImage { width: 120; height: 80; image.source: message.pictureSource }
    \endqml
*/
import QtQuick

Item {
    id: control

    //! The KImage.
    property alias image: image
    property bool showSpinner: true
    property bool mirrorEnabled

    KSvgSpinner {
        width: 27
        height: 27
        anchors.centerIn: parent
        visible: control.showSpinner && !priv.hasLoaded
    }
    KImage {
        id: image

        anchors.fill: parent
        visible: priv.hasLoaded
        fillMode: Image.PreserveAspectFit
        mirror: control.mirrorEnabled
        onStatusChanged: {
            if (status === Image.Ready)
                priv.hasLoaded = true;
        }
    }

    QtObject {
        id: priv

        // Never false again: a later picture loads behind the earlier one.
        property bool hasLoaded
    }
}
