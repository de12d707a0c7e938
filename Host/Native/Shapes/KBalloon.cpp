#include "KBalloon.h"

#include "WindowMask.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr qreal defaultArrowSize = 10;
constexpr qreal defaultRadius = 8;
constexpr qreal cutTolerance = 0.1; // pixels halfway outside belong to the cut as well, on all sides alike

} // namespace

KBalloon::KBalloon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    m_shape.arrowSize = defaultArrowSize;
    m_shape.radius = defaultRadius;
    setAntialiasing(true);
    watchWindow(window());
}

KBalloon::~KBalloon()
{
    watchWindow(nullptr);
}

template<typename T>
void KBalloon::change(T &member, const T &value, void (KBalloon::*changed)())
{
    if (member == value)
        return;
    member = value;
    update();
    shapeWindow();
    Q_EMIT(this->*changed)();
}

int KBalloon::arrowAnchor() const
{
    return m_shape.anchor;
}

void KBalloon::setArrowAnchor(int anchor)
{
    change(m_shape.anchor, anchor, &KBalloon::arrowAnchorChanged);
}

int KBalloon::arrowAlignment() const
{
    return m_shape.alignment;
}

void KBalloon::setArrowAlignment(int alignment)
{
    change(m_shape.alignment, alignment, &KBalloon::arrowAlignmentChanged);
}

qreal KBalloon::arrowOffset() const
{
    return m_shape.arrowOffset;
}

void KBalloon::setArrowOffset(qreal offset)
{
    change(m_shape.arrowOffset, offset, &KBalloon::arrowOffsetChanged);
}

qreal KBalloon::arrowSize() const
{
    return m_shape.arrowSize;
}

void KBalloon::setArrowSize(qreal size)
{
    change(m_shape.arrowSize, size, &KBalloon::arrowSizeChanged);
}

qreal KBalloon::radius() const
{
    return m_shape.radius;
}

void KBalloon::setRadius(qreal radius)
{
    change(m_shape.radius, radius, &KBalloon::radiusChanged);
}

QColor KBalloon::backgroundColor() const
{
    return m_backgroundColor;
}

void KBalloon::setBackgroundColor(const QColor &color)
{
    change(m_backgroundColor, color, &KBalloon::backgroundColorChanged);
}

QColor KBalloon::borderColor() const
{
    return m_borderColor;
}

void KBalloon::setBorderColor(const QColor &color)
{
    change(m_borderColor, color, &KBalloon::borderColorChanged);
}

qreal KBalloon::borderWidth() const
{
    return m_borderWidth;
}

void KBalloon::setBorderWidth(qreal width)
{
    change(m_borderWidth, width, &KBalloon::borderWidthChanged);
}

void KBalloon::paint(QPainter *painter)
{
    const QRectF bounds(0, 0, width(), height());
    const bool hasBorder = m_borderWidth > 0 && m_borderColor.alpha() > 0;
    // The smooth edge of a cut window would shade off into black.
    painter->setRenderHint(QPainter::Antialiasing, false);
    if (m_isMasked)
        painter->fillPath(cut(bounds), hasBorder ? m_borderColor : m_backgroundColor);
    painter->setRenderHint(QPainter::Antialiasing);
    if (!hasBorder) {
        painter->fillPath(m_shape.outline(bounds), m_backgroundColor);
        return;
    }

    // The line runs half its width inside the edge; the arrow starts as deep within, so its length stays the same.
    const qreal scale = painter->deviceTransform().m11();
    const qreal line = std::max(1.0, std::round(m_borderWidth * scale)) / scale;
    const qreal inset = line / 2;
    KBalloonShape middle = m_shape;
    middle.radius = std::max(0.0, m_shape.radius - inset);
    painter->setBrush(m_backgroundColor);
    painter->setPen(QPen(m_borderColor, line, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter->drawPath(middle.outline(bounds.adjusted(inset, inset, -inset, -inset)));
}

void KBalloon::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemSceneChange)
        watchWindow(value.window);
    QQuickPaintedItem::itemChange(change, value);
}

void KBalloon::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    shapeWindow();
}

void KBalloon::watchWindow(QQuickWindow *window)
{
    for (QMetaObject::Connection &resize : m_resizes)
        disconnect(resize);
    if (m_shaped && m_isMasked)
        WindowMask::set(*m_shaped, {});
    m_shaped = nullptr;
    m_isMasked = false;
    if (!window || !WindowMask::isNeeded(*window))
        return;
    m_shaped = window;
    m_resizes[0] = connect(window, &QWindow::widthChanged, this, &KBalloon::shapeWindow);
    m_resizes[1] = connect(window, &QWindow::heightChanged, this, &KBalloon::shapeWindow);
    shapeWindow();
}

bool KBalloon::fillsWindow() const
{
    return m_shaped->color().alpha() == 0 && !m_shaped->size().isEmpty()
        && mapRectToScene(boundingRect()).toAlignedRect() == QRect({}, m_shaped->size());
}

QPainterPath KBalloon::cut(const QRectF &bounds) const
{
    return m_shape.outline(bounds.adjusted(-cutTolerance, -cutTolerance, cutTolerance, cutTolerance));
}

void KBalloon::shapeWindow()
{
    if (!m_shaped)
        return;
    const bool wasMasked = std::exchange(m_isMasked, fillsWindow());
    if (m_isMasked != wasMasked)
        update();
    if (m_isMasked || wasMasked)
        WindowMask::set(*m_shaped, m_isMasked ? cut(mapRectToScene(boundingRect())) : QPainterPath());
}
