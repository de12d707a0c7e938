/*!
    What lies over one half of a pill while that half is hovered, pressed or checked, made when first shown.

    \qml
    PillHalfWash { half: control; corners: control.squareCorners; isShown: control.hovered }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private 1.0

Item {
    id: wash

    required property UTButtonBase half
    //! The corners where the half joins the other one: KBasicFocusItem.RectangularCorner.
    property int corners
    property bool isShown: true
    property alias themeType: shape.themeType
    property alias controlsTarget: shape.controlsTarget
    property alias backgroundColorSetName: shape.backgroundColorSetName

    readonly property int topLeft: KBasicFocusItem.RectangularCorner.TopLeft
    readonly property int topRight: KBasicFocusItem.RectangularCorner.TopRight
    readonly property int bottomLeft: KBasicFocusItem.RectangularCorner.BottomLeft
    readonly property int bottomRight: KBasicFocusItem.RectangularCorner.BottomRight
    readonly property real inset: 1 // leaves the pill's border alone

    // How far the shape reaches out over a side whose corners are square, to be cut off there.
    function overhang(sideCorners: int): real {
        return (corners & sideCorners) === sideCorners ? shape.radius : 0;
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
    visible: isShown
    clip: corners !== KBasicFocusItem.RectangularCorner.None

    KRectangle {
        id: shape

        x: -wash.leftOverhang
        y: -wash.topOverhang
        width: wash.width + wash.leftOverhang + wash.rightOverhang
        height: wash.height + wash.topOverhang + wash.bottomOverhang
        radius: Math.min(wash.half.width, wash.half.height) / 2 - wash.inset
    }
}
