/*!
    Two buttons side by side in one pill, or one above the other. For use inside the library only: the toggle and the dual
    buttons are made of it.

    \qml
    PillPair { leftButton.iconName: "minus-bold"; rightButton.iconName: "plus-bold" }
    \endqml
*/
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/PillPairColors.js" as Script

Item {
    id: pair

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Side by side, else one above the other.
    property bool isHorizontal: true
    //! The colours for buttons on top of a picture.
    property bool isOnPicture
    //! A value of UTButtonStyle.
    property int style: UTButtonStyle.Secondary
    //! Height of the pill while it lies, width while it stands; in pixels.
    property real thickness: 32
    readonly property alias leftButton: leftHalf
    readonly property alias rightButton: rightHalf

    readonly property var colors: Script.colorsOf(style, isOnPicture, UTButtonStyle)
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(colors.text, themeType)
    readonly property kColorSet checkedTextColorSet: ThemeManager.globalTheme, App.getColorSet(colors.checkedText ?? colors.text, themeType)
    readonly property real separatorWidth: 1
    readonly property real endPadding: Math.round(thickness * 0.375)
    readonly property real innerPadding: Math.round(thickness * 0.25)
    readonly property bool isMirrored: isHorizontal && leftHalf.mirrored
    // Enough for the labels at every text scale.
    readonly property real extent: Math.max(thickness, leftHalf.labelHeight, rightHalf.labelHeight)

    implicitWidth: isHorizontal ? leftHalf.naturalWidth + separatorWidth + rightHalf.naturalWidth : extent
    implicitHeight: isHorizontal ? extent : 2 * thickness + separatorWidth

    KFrame {
        width: pair.width
        height: pair.height
        radius: Math.min(width, height) / 2
        themeType: pair.themeType
        controlsTarget: ({ enabled: leftHalf.enabled || rightHalf.enabled })
        backgroundColorSetName: pair.colors.background
        borderColorSetName: pair.colors.border
    }
    PillHalf {
        id: leftHalf

        x: pair.isMirrored ? pair.width - width : 0
        width: pair.isHorizontal ? pair.width - pair.separatorWidth - rightHalf.width : pair.width
        height: pair.isHorizontal ? pair.height : Math.floor((pair.height - pair.separatorWidth) / 2)
        themeType: pair.themeType
        startPadding: pair.isHorizontal ? pair.endPadding : 0
        endPadding: pair.isHorizontal ? pair.innerPadding : 0
        labelSpacing: 4
        squareCorners: pair.isHorizontal ? KBasicFocusItem.RectangularCorner.TopRight | KBasicFocusItem.RectangularCorner.BottomRight
            : KBasicFocusItem.RectangularCorner.BottomLeft | KBasicFocusItem.RectangularCorner.BottomRight
        washColorSetName: checked && pair.colors.checkedWash ? pair.colors.checkedWash : pair.colors.wash
        textColorSet: checked ? pair.checkedTextColorSet : pair.textColorSet
    }
    PillHalf {
        id: rightHalf

        x: pair.isHorizontal && !pair.isMirrored ? pair.width - width : 0
        y: pair.height - height
        width: pair.isHorizontal ? Math.min(naturalWidth, Math.max(0, pair.width - leftHalf.startPadding - leftHalf.iconRoom)) : pair.width
        height: leftHalf.height
        themeType: pair.themeType
        startPadding: pair.isHorizontal ? pair.innerPadding : 0
        endPadding: pair.isHorizontal ? pair.endPadding : 0
        labelSpacing: leftHalf.labelSpacing
        squareCorners: pair.isHorizontal ? KBasicFocusItem.RectangularCorner.TopLeft | KBasicFocusItem.RectangularCorner.BottomLeft
            : KBasicFocusItem.RectangularCorner.TopLeft | KBasicFocusItem.RectangularCorner.TopRight
        washColorSetName: checked && pair.colors.checkedWash ? pair.colors.checkedWash : pair.colors.wash
        textColorSet: checked ? pair.checkedTextColorSet : pair.textColorSet
    }
    // The line between them, with air around it so that it parts and does not cut.
    Rectangle {
        readonly property real air: Math.round(pair.thickness / 4)

        x: pair.isHorizontal ? (pair.isMirrored ? leftHalf.x - width : leftHalf.width) : air
        y: pair.isHorizontal ? air : leftHalf.height
        width: pair.isHorizontal ? pair.separatorWidth : pair.width - 2 * air
        height: pair.isHorizontal ? pair.height - 2 * air : pair.separatorWidth
        color: leftHalf.contentColor
        opacity: 0.3
    }

    Accessible.role: Accessible.Grouping
}
