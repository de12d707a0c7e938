/*!
    What lies over one half of a pill while that half is hovered, pressed or checked, made when first shown.

    \qml
    PillHalfWash { half: control }
    \endqml
*/
import QtQuick

Item {
    id: wash

    required property PillHalf half

    readonly property int topLeft: KBasicFocusItem.RectangularCorner.TopLeft
    readonly property int topRight: KBasicFocusItem.RectangularCorner.TopRight
    readonly property int bottomLeft: KBasicFocusItem.RectangularCorner.BottomLeft
    readonly property int bottomRight: KBasicFocusItem.RectangularCorner.BottomRight
    readonly property real inset: 1 // leaves the pill's border alone

    // How far the shape reaches out over a side whose corners are square, to be cut off there.
    function overhang(sideCorners: int): real {
        return (half.squareCorners & sideCorners) === sideCorners ? shape.radius : 0;
    }

    readonly property real startOverhang: overhang(topLeft | bottomLeft)
    readonly property real endOverhang: overhang(topRight | bottomRight)
    readonly property real leftOverhang: half.mirrored ? endOverhang : startOverhang
    readonly property real rightOverhang: half.mirrored ? startOverhang : endOverhang
    readonly property real topOverhang: overhang(topLeft | topRight)
    readonly property real bottomOverhang: overhang(bottomLeft | bottomRight)

    x: leftOverhang > 0 ? 0 : inset
    y: topOverhang > 0 ? 0 : inset
    z: -1
    width: half.width - x - (rightOverhang > 0 ? 0 : inset)
    height: half.height - y - (bottomOverhang > 0 ? 0 : inset)
    visible: half.isLit
    clip: half.squareCorners !== KBasicFocusItem.RectangularCorner.None

    KRectangle {
        id: shape

        x: -wash.leftOverhang
        y: -wash.topOverhang
        width: wash.width + wash.leftOverhang + wash.rightOverhang
        height: wash.height + wash.topOverhang + wash.bottomOverhang
        radius: Math.min(wash.half.width, wash.half.height) / 2 - wash.inset
        themeType: wash.half.themeType
        controlsTarget: wash.half.controlsTarget
        backgroundColorSetName: wash.half.washColorSetName
    }
}
