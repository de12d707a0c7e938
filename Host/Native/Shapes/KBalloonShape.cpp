#include "KBalloonShape.h"

#include <QTransform>

#include <algorithm>

namespace {

constexpr qreal tipRounding = 2; // how far from its end the tip of the arrow starts to bend

bool isHorizontal(int anchor)
{
    return anchor == KBalloonShape::Left || anchor == KBalloonShape::Right;
}

// A balloon as if its arrow pointed up: the length of the arrow's side and the extent across it.
struct Upright
{
    qreal length;
    qreal depth;
    qreal arrow;
    qreal radius;
    qreal halfRoot;

    Upright(const KBalloonShape &shape, const QRectF &bounds)
    {
        const bool hasArrow = shape.anchor > KBalloonShape::None && shape.anchor <= KBalloonShape::Right;
        length = std::max(0.0, isHorizontal(shape.anchor) ? bounds.height() : bounds.width());
        depth = std::max(0.0, isHorizontal(shape.anchor) ? bounds.width() : bounds.height());
        arrow = hasArrow ? std::clamp(shape.arrowSize, 0.0, depth) : 0.0;
        radius = std::clamp(shape.radius, 0.0, std::min(length, depth - arrow) / 2);
        halfRoot = std::min(arrow, length / 2 - radius);
    }

    qreal tip(const KBalloonShape &shape) const
    {
        const qreal first = radius + halfRoot;
        const qreal last = length - first;
        const auto aligned = static_cast<KBalloonShape::Alignment>(shape.alignment);
        qreal start = length / 2;
        if (aligned == (isHorizontal(shape.anchor) ? KBalloonShape::TopAlignment : KBalloonShape::LeftAlignment))
            start = first;
        if (aligned == (isHorizontal(shape.anchor) ? KBalloonShape::BottomAlignment : KBalloonShape::RightAlignment))
            start = last;
        return last > first ? std::clamp(start + shape.arrowOffset, first, last) : length / 2;
    }

    QPainterPath path(qreal tip) const
    {
        const qreal round = 2 * radius;
        QPainterPath path;
        path.moveTo(radius, arrow);
        if (arrow > 0 && halfRoot > 0) {
            const qreal bend = std::min(tipRounding / arrow, 1.0);
            path.lineTo(tip - halfRoot, arrow);
            path.lineTo(tip - halfRoot * bend, arrow * bend);
            path.quadTo(tip, 0, tip + halfRoot * bend, arrow * bend);
            path.lineTo(tip + halfRoot, arrow);
        }
        path.lineTo(length - radius, arrow);
        path.arcTo(length - round, arrow, round, round, 90, -90);
        path.lineTo(length, depth - radius);
        path.arcTo(length - round, depth - round, round, round, 0, -90);
        path.lineTo(radius, depth);
        path.arcTo(0, depth - round, round, round, -90, -90);
        path.lineTo(0, arrow + radius);
        path.arcTo(0, arrow, round, round, 180, -90);
        path.closeSubpath();
        return path;
    }
};

// Turns the upright balloon so that its arrow points to the side that carries it.
QTransform placed(int anchor, const QRectF &bounds)
{
    switch (anchor) {
    case KBalloonShape::Bottom:
        return {1, 0, 0, -1, bounds.left(), bounds.bottom()};
    case KBalloonShape::Left:
        return {0, 1, 1, 0, bounds.left(), bounds.top()};
    case KBalloonShape::Right:
        return {0, 1, -1, 0, bounds.right(), bounds.top()};
    default:
        return {1, 0, 0, 1, bounds.left(), bounds.top()};
    }
}

} // namespace

QRectF KBalloonShape::body(const QRectF &bounds) const
{
    const Upright upright(*this, bounds);
    const QRectF rest(0, upright.arrow, upright.length, upright.depth - upright.arrow);
    return placed(anchor, bounds).mapRect(rest);
}

qreal KBalloonShape::arrowPosition(const QRectF &bounds) const
{
    return Upright(*this, bounds).tip(*this);
}

QPainterPath KBalloonShape::outline(const QRectF &bounds) const
{
    if (bounds.isEmpty())
        return {};
    const Upright upright(*this, bounds);
    return placed(anchor, bounds).map(upright.path(upright.tip(*this)));
}
