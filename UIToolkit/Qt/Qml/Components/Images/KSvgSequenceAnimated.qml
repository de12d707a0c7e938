/*!
    A film of numbered SVG pictures of the host's resources, in their own colours or in that of a colour set.

    \qml
    KSvgSequenceAnimated { imagePrefixName: "audio-wave-"; frameCount: 4; svgColorSetName: "text-primary" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

KSvgImage {
    id: control

    //! The names of the frames up to their numbers, which begin with 0.
    property string imagePrefixName
    property int frameCount: 1
    property int currentFrame
    //! Milliseconds.
    property int frameDuration: 200
    //! Empty for the pictures' own colours.
    property string svgColorSetName
    property alias loops: animation.loops
    property alias paused: animation.paused
    property alias running: animation.running
    readonly property kColorSet svgColorSet: ThemeManager.globalTheme, App.getColorSet(svgColorSetName, themeType)
    readonly property color sourceColor: ThemeUtils.getColor(controlsTarget, svgColorSet)
    readonly property string frameName: imagePrefixName + currentFrame

    width: 12
    height: 12
    // In the background, each frame would leave a gap before it shows.
    asynchronous: false
    source: {
        if (imagePrefixName.length === 0)
            return "";
        return svgColorSetName.length > 0 ? `image://svg/${sourceColor}/${frameName}` : "qrc:/Resources/%1.svg".arg(frameName);
    }

    NumberAnimation on currentFrame {
        id: animation

        from: 0
        to: Math.max(0, control.frameCount - 1)
        duration: Math.max(0, control.frameDuration * control.frameCount)
        loops: Animation.Infinite
    }
}
