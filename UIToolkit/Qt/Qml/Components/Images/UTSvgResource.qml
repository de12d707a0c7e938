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
    property int imagePrefixType: 0 // UTSvgResource.ImagePrefixType.None
    property string emojiName
    property bool validSize

    antialiasing: true
    mipmap: true
    smooth: true
    source: {
        if (!validSize)
            return "";
        // Numbers, because looking up an enumerator costs more than all the rest. An unknown one stands for None.
        const type = imagePrefixType >= 1 && imagePrefixType <= 4 ? imagePrefixType : 0;
        if ((type === 0 || type === 4) && svgName.length > 0 && svgColor.a > 0) // Svg
            return `image://svg/${svgColor}/${svgName}`;
        if ((type === 0 || type === 1) && pngName.length > 0) // Png
            return "qrc:/Resources/" + pngName;
        if (type === 2 && svgName.length > 0) // Emoji
            return "qrc:/emojis/" + svgName;
        if ((type === 0 || type === 3) && emojiName.length > 0) // EmojiWithTheme
            return emojiName + "/" + themeType + "/0";
        return "";
    }

    onSourceSizeChanged: validSize = sourceSize.width > 0 && sourceSize.height > 0
}
