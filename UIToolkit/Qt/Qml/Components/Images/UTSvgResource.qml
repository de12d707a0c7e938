/*!
    A picture that may come as a coloured icon, a bitmap or an emoji; for use inside the module only. It stays empty
    until it is told a source size.

    \qml
    UTSvgResource { svgName: "plus-bold"; svgColor: "red"; sourceSize: Qt.size(16, 16) }
    \endqml
*/
import QtQuick

KImage {
    id: control

    enum ImagePrefixType {
        None,
        Png,
        Emoji,
        EmojiWithTheme,
        Svg
    }

    property color svgColor: "transparent"
    property string svgName
    property string pngName
    property int imagePrefixType: UTSvgResource.ImagePrefixType.None
    property string emojiName
    property bool validSize: false

    // The source in the form of \a prefixType, empty where a part of it is missing.
    function sourceOf(prefixType: int): string {
        switch (prefixType) {
        case UTSvgResource.ImagePrefixType.Png:
            return pngName.length > 0 ? "qrc:/Resources/%1".arg(pngName) : "";
        case UTSvgResource.ImagePrefixType.Emoji:
            return svgName.length > 0 ? "qrc:/emojis/%1".arg(svgName) : "";
        case UTSvgResource.ImagePrefixType.EmojiWithTheme:
            return emojiName.length > 0 ? "%1/%2/0".arg(emojiName).arg(themeType) : "";
        case UTSvgResource.ImagePrefixType.Svg:
            return svgName.length > 0 && !Qt.colorEqual(svgColor, "transparent") ? "image://svg/%1/%2".arg(svgColor).arg(svgName) : "";
        default:
            return sourceOf(UTSvgResource.ImagePrefixType.Svg) || sourceOf(UTSvgResource.ImagePrefixType.Png)
                || sourceOf(UTSvgResource.ImagePrefixType.EmojiWithTheme);
        }
    }

    antialiasing: true
    mipmap: true
    smooth: true
    source: validSize ? sourceOf(imagePrefixType) : ""

    onSourceSizeChanged: validSize = sourceSize.width > 0 && sourceSize.height > 0
}
