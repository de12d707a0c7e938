#pragma once

#include "korvuui_export.h"

#include <QPainterPath>
#include <QRectF>

/*!
    The outline of a balloon: a rectangle with round corners and an arrow that grows out of one side. The arrow is as
    long as arrowSize, twice as wide at its root, and reaches the edge of the balloon's bounds; the rectangle takes
    what is left of them.
*/
struct KORVUUI_EXPORT KBalloonShape
{
    //! The side that carries the arrow.
    enum Anchor { None, Top, Bottom, Left, Right };

    //! Where along its side the arrow sits. A value that does not fit the side means the centre.
    enum Alignment { LeftAlignment, CenterAlignment, RightAlignment, TopAlignment, BottomAlignment };

    int anchor = None;
    int alignment = CenterAlignment;
    qreal arrowOffset = 0; //!< moves the arrow to the right, or down
    qreal arrowSize = 0;   //!< 0 or less: no arrow
    qreal radius = 0;      //!< of the corners; never more than half the rectangle's shorter side

    //! The part of \a bounds that is not set aside for the arrow.
    QRectF body(const QRectF &bounds) const;

    //! The arrow's tip as a distance from the left or top end of its side. Kept off the round corners, so that the
    //! whole root of the arrow lies on the straight part; in the middle where that is too short.
    qreal arrowPosition(const QRectF &bounds) const;

    //! The closed outline within \a bounds; empty when they are.
    QPainterPath outline(const QRectF &bounds) const;
};
