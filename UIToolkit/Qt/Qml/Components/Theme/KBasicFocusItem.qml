/*!
    The settings of a focus ring: where it lies and which shape it has. KCustomFocusItem shows it.

    \qml
    KBasicFocusItem { isRectangle: true; cornerRadius: 4 }
    \endqml
*/
import QtQuick

Item {
    id: control

    //! Corners that are drawn square. Name them in full, KBasicFocusItem.RectangularCorner.TopLeft: the short form is
    //! Item's transform origin, another number.
    enum RectangularCorner {
        None = 0,
        TopLeft = 1,
        TopRight = 2,
        BottomLeft = 4,
        BottomRight = 8
    }

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Draws the ring inside the item instead of around it.
    property bool innerFocusBorder
    //! Margin of the canvas around the item, on every side.
    readonly property real extraSpace: innerFocusBorder ? 0 : 5
    //! The item that hosts the canvas; the top-most ancestor when undefined.
    property var designatedParent
    property bool isRectangle
    property real cornerRadius: 8
    //! When set, decides the radius of a rectangle instead of cornerRadius: true 2, false 4.
    property var isExtraSmall
    property bool isSemicircle: !isRectangle
    //! An explicit rectangle for the ring, in the parent's coordinates.
    property rect customRect
    readonly property bool isCustomRect: customRect.x !== 0 || customRect.y !== 0 || customRect.width !== 0 || customRect.height !== 0
    property int rectangularCornerMask: KBasicFocusItem.RectangularCorner.None
}
