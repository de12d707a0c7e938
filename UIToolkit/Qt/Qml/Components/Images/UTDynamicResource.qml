/*!
    A picture or film from elsewhere, which the host fetches in the variant for the theme.

    \qml
    UTDynamicResource { width: 240; height: 160; imageSource: message.image; fallbackImage: "qrc:/Resources/empty-inbox.svg" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml_Private_Data 1.0

Item {
    id: control

    property var imageFillMode: Image.PreserveAspectFit
    property bool showSpinner: true
    property bool mirrorEnabled
    //! An address that begins with "data:", "qrc:" or "file:", or an encoded source as MediaPolicy.encode makes it.
    property string imageSource
    //! Shown in place of a picture that cannot be had.
    property string fallbackImage
    readonly property bool usesDirectImageSource: /^(data|qrc|file):/.test(imageSource)
    readonly property string resourceUrl: usesDirectImageSource ? imageSource
        : "image://dynamic/?imageProviderUrl=" + imageSource + "&isDark=" + (ThemeManager.isDarkTheme ? "true" : "false") + "&fallbackImage=" + fallbackImage

    //! A still image is there, of this size in pixels.
    signal resourceLoaded(int sourceWidth, int sourceHeight)

    UTDynamicResourceData.sourceUrl: imageSource

    // By type, 1 for an image and 2 for a film. Both may be active: the type of an earlier source outlives a change to a
    // direct one. The components are not bound to the file, which a Loader of Qt 6.4 would refuse.
    // qmllint disable unqualified
    Loader {
        anchors.fill: parent
        active: control.usesDirectImageSource || control.UTDynamicResourceData.type === 1 // qmllint disable unresolved-type
        visible: active
        sourceComponent: KDynamicImage {
            readonly property int status: image.status

            showSpinner: control.showSpinner
            mirrorEnabled: control.mirrorEnabled
            image.fillMode: control.imageFillMode
            image.source: control.resourceUrl
            onStatusChanged: {
                if (status === Image.Ready)
                    control.resourceLoaded(image.sourceSize.width, image.sourceSize.height);
            }
        }
    }
    Loader {
        anchors.fill: parent
        active: control.UTDynamicResourceData.type === 2 // qmllint disable unresolved-type
        visible: active
        sourceComponent: KDynamicAnimatedImage {
            source: control.resourceUrl
            isSpinnerShown: control.showSpinner
            image.fillMode: control.imageFillMode
            image.mirror: control.mirrorEnabled
        }
    }
    // qmllint enable unqualified
}
