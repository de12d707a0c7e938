import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Images")
    description: qsTr("A picture that may come as a coloured icon, a bitmap or an emoji; for use inside the module.")
    controls: [
        PropertyChoice { id: type; label: "imagePrefixType"; options: ["None", "Png", "Emoji", "EmojiWithTheme", "Svg"] },
        PropertySwitch { id: hasSvg; label: "svgName: \"favorite-filled\""; value: true },
        PropertySwitch { id: hasColor; label: "svgColor"; value: true },
        PropertySwitch { id: hasPng; label: "pngName: \"sample-landscape.png\""; value: true },
        PropertySlider { id: size; label: "sourceSize"; to: 128; value: 64 }
    ]

    Playground {
        UTSvgResource {
            // An emoji is named as an icon is, so there the switch names an emoji.
            svgName: !hasSvg.value ? "" : type.value === "Emoji" ? "smile.svg" : "favorite-filled"
            svgColor: hasColor.value ? accent.color : "transparent"
            pngName: hasPng.value ? "sample-landscape.png" : ""
            imagePrefixType: type.value === "EmojiWithTheme" ? UTSvgResource.None : type.currentIndex
            sourceSize: Qt.size(size.value, size.value)
            onSourceChanged: page.log(source.toString().length > 0 ? qsTr("source is %1").arg(source) : qsTr("no source"))
            onValidSizeChanged: page.log(validSize ? qsTr("the size is valid") : qsTr("the size is not valid"))
        }
    }
    Sheet {
        title: qsTr("Forms")

        Cell {
            label: "Svg"

            UTSvgResource { imagePrefixType: UTSvgResource.Svg; svgName: "favorite-filled"; svgColor: accent.color; sourceSize: Qt.size(40, 40) }
        }
        Cell {
            label: "Png"

            UTSvgResource { imagePrefixType: UTSvgResource.Png; pngName: "sample-landscape.png"; sourceSize: Qt.size(72, 40) }
        }
        Cell {
            label: "Emoji"

            UTSvgResource { imagePrefixType: UTSvgResource.Emoji; svgName: "heart.svg"; sourceSize: Qt.size(40, 40) }
        }
        Cell {
            label: "None"
            note: qsTr("the icon wins over the bitmap")

            UTSvgResource { svgName: "favorite-filled"; svgColor: accent.color; pngName: "sample-landscape.png"; sourceSize: Qt.size(40, 40) }
        }
        Cell {
            label: qsTr("None, without a colour")
            note: qsTr("the bitmap is left")

            UTSvgResource { svgName: "favorite-filled"; pngName: "sample-landscape.png"; sourceSize: Qt.size(72, 40) }
        }
        Cell {
            label: "sourceSize: 0 × 16"
            note: qsTr("empty until both are positive")

            UTSvgResource { svgName: "favorite-filled"; svgColor: accent.color; sourceSize: Qt.size(0, 16) }
        }
    }

    KText {
        id: accent

        visible: false
        textColorSetName: "interactiveicon-tertiary-filled-favorite-icon-active"
    }
}
