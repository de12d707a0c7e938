/*!
    A film that the host fetches: a spinner meanwhile, and a still image if it cannot be had.

    \qml
    KDynamicAnimatedImage { width: 240; height: 160; source: "qrc:/Resources/coverImageSpinner.gif"; keepAspectRatio: true }
    \endqml
*/
import QtQuick
import Korvu 1.0

Item {
    id: control

    //! The animation.
    property alias image: animation
    property bool isSpinnerShown: true
    //! What to fetch: an "image://dynamic/..." or the address of a film.
    property string source
    //! Gives the animation the film's proportions, whatever its fill mode.
    property bool keepAspectRatio

    onSourceChanged: {
        if (priv.isComplete)
            provider.fetch(source);
    }
    Component.onCompleted: {
        priv.isComplete = true;
        provider.fetch(source);
    }

    KSvgSpinner {
        width: 27
        height: 27
        anchors.centerIn: parent
        visible: control.isSpinnerShown && provider.stackIndex === 0 // KMovieProvider.Waiting
    }
    KMovieImage {
        id: animation

        anchors.centerIn: parent
        width: priv.size.width
        height: priv.size.height
        visible: provider.stackIndex === 1 // KMovieProvider.Movie
        movie: provider.movie
    }
    KImage {
        anchors.fill: parent
        visible: provider.stackIndex === 2 // KMovieProvider.Fallback
        fillMode: Image.PreserveAspectFit
        source: provider.fallbackSource
    }
    KMovieProvider {
        id: provider
    }

    QtObject {
        id: priv

        property bool isComplete
        // As large as the item allows.
        readonly property size size: {
            const ratio = provider.aspectRatio;
            if (!control.keepAspectRatio || ratio <= 0)
                return Qt.size(control.width, control.height);
            const scaledWidth = control.height * ratio;
            return scaledWidth < control.width ? Qt.size(scaledWidth, control.height) : Qt.size(control.width, control.width / ratio);
        }
    }
}
