/*!
    Sizes, weights, families and ready fonts of the design system. Sizes are pixels and follow the host's text scale;
    14 is the smallest meant for running text.

    \qml
    Text { font: FontConstants.bodyPrimary }
    \endqml
*/
pragma Singleton

import QtQml
import QtQuick
import Korvu 1.0

QtObject {
    id: control

    readonly property int extraLarge: scaled(40)
    readonly property int large: scaled(26)
    readonly property int medium: scaled(20)
    readonly property int mediumSmall: scaled(16)
    readonly property int small: scaled(14)
    readonly property int extraSmall: scaled(12)

    readonly property int regularWeight: Font.Normal
    readonly property int semiboldWeight: Font.DemiBold
    readonly property int boldWeight: Font.Bold

    readonly property string monospace: "Consolas"
    readonly property string segoeEmoji: "Segoe UI Emoji"
    readonly property string defaultFamily: Qt.platform.os === "windows"
        ? priv.familyOfFace(priv.upperCase.advanceWidth, priv.lowerCase.advanceWidth)
        : priv.segoe

    readonly property font codeBlocks: Qt.font({ family: monospace, pixelSize: mediumSmall })
    readonly property font emoji: Qt.font({ family: segoeEmoji, pixelSize: mediumSmall })

    // The presets named "Semibold" are Medium while the headings are DemiBold; the difference is wanted.
    readonly property font bodyTertiary: Qt.font({ family: defaultFamily, pixelSize: small })
    readonly property font bodySecondary: Qt.font({ family: defaultFamily, pixelSize: small })
    readonly property font bodySecondaryBold: Qt.font({ family: defaultFamily, pixelSize: small, bold: true })
    readonly property font bodySecondarySemibold: Qt.font({ family: defaultFamily, pixelSize: small, weight: Font.Medium })
    readonly property font bodySecondaryItalic: Qt.font({ family: defaultFamily, pixelSize: small, italic: true })
    readonly property font bodyPrimary: Qt.font({ family: defaultFamily, pixelSize: mediumSmall })
    readonly property font bodyPrimaryBold: Qt.font({ family: defaultFamily, pixelSize: mediumSmall, bold: true })
    readonly property font bodyPrimarySemibold: Qt.font({ family: defaultFamily, pixelSize: mediumSmall, weight: Font.Medium })
    readonly property font spaceHeader: Qt.font({ family: defaultFamily, pixelSize: priv.spaceHeaderSize })
    readonly property font spaceHeaderBold: Qt.font({ family: defaultFamily, pixelSize: priv.spaceHeaderSize, bold: true })
    readonly property font header: Qt.font({ family: defaultFamily, pixelSize: mediumSmall, bold: true })
    readonly property font subheaderPrimary: Qt.font({ family: defaultFamily, pixelSize: mediumSmall, weight: Font.DemiBold })
    readonly property font subheaderSecondary: Qt.font({ family: defaultFamily, pixelSize: small, weight: Font.DemiBold })
    readonly property font title: Qt.font({ family: defaultFamily, pixelSize: medium, weight: Font.DemiBold })
    readonly property font bannerPrimary: Qt.font({ family: defaultFamily, pixelSize: large, weight: Font.DemiBold })
    readonly property font bannerSecondary: Qt.font({ family: defaultFamily, pixelSize: large })
    readonly property font bannerTertiary: Qt.font({ family: defaultFamily, pixelSize: large, weight: Font.Bold })
    readonly property font hyperlinkPrimary: Qt.font({ family: defaultFamily, pixelSize: mediumSmall, underline: true })
    readonly property font hyperlinkPrimaryBold: Qt.font({ family: defaultFamily, pixelSize: mediumSmall, weight: Font.Bold, underline: true })
    readonly property font hyperlinkSecondary: Qt.font({ family: defaultFamily, pixelSize: small, underline: true })
    readonly property font tagLabelSecondary: Qt.font({ family: defaultFamily, pixelSize: extraSmall, weight: Font.DemiBold })
    readonly property font tagLabelTertiary: Qt.font({ family: defaultFamily, pixelSize: extraSmall })
    readonly property font bodyLight: Qt.font({ family: defaultFamily, pixelSize: small, weight: Font.Light })
    readonly property font highlightSecondary: Qt.font({ family: defaultFamily, pixelSize: small, weight: Font.Bold })
    readonly property font highlightCompact: Qt.font({ family: defaultFamily, pixelSize: extraSmall, weight: Font.Bold })

    //! The size in pixels that \a pixels of the design have at the host's text scale; whole, at least 1.
    function scaled(pixels: int): int {
        return Math.max(1, Math.round(pixels * priv.textScale));
    }

    //! The height of a line of \a font in pixels.
    function lineHeight(font: font): real {
        priv.line.font = font;
        return priv.line.height;
    }

    readonly property QtObject priv: QtObject {
        id: priv

        // A host without text scaling leaves the property out.
        readonly property real textScale: App.textScale > 0 ? App.textScale : 1
        readonly property int spaceHeaderSize: control.scaled(18)

        readonly property string segoe: "Segoe UI"
        readonly property string segoeVariable: "Segoe UI Variable"
        readonly property int probeSize: 9
        readonly property real segoeMinimumRatio: 1.05

        // "Segoe UI" may be drawn with either of two faces; the widths of the alphabets tell which one it is.
        function familyOfFace(upperWidth: real, lowerWidth: real): string {
            return lowerWidth > 0 && upperWidth / lowerWidth >= segoeMinimumRatio ? segoe : segoeVariable;
        }

        readonly property TextMetrics upperCase: TextMetrics {
            font.family: priv.segoe
            font.pointSize: priv.probeSize
            text: "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
        }
        readonly property TextMetrics lowerCase: TextMetrics {
            font.family: priv.segoe
            font.pointSize: priv.probeSize
            text: "abcdefghijklmnopqrstuvwxyz"
        }
        readonly property FontMetrics line: FontMetrics {}
    }
}
