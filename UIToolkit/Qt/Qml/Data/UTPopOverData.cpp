#include "UTPopOverData.h"

#include "PopOverPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <array>

namespace {

struct SizeClass
{
    int arrowSize;
    int radius;
};

// By UTPopOverEnum::Size.
constexpr std::array<SizeClass, 2> sizeClasses = {{{10, 8}, {16, 10}}};

QList<PopOverPlacement::Screen> screens()
{
    QList<PopOverPlacement::Screen> list;
    for (const QScreen *screen : QGuiApplication::screens())
        list.append({screen->geometry(), screen->availableGeometry()});
    return list;
}

} // namespace

UTPopOverData::UTPopOverData(QObject *parent)
    : KObject(parent)
{
    refresh();
    connect(this, &UTPopOverData::sizeChanged, this, &UTPopOverData::refresh);
    connect(this, &UTPopOverData::arrowVisibleChanged, this, &UTPopOverData::refresh);
    connect(this, &UTPopOverData::targetItemRectChanged, this, &UTPopOverData::place);
    connect(this, &UTPopOverData::popOverSizeChanged, this, &UTPopOverData::place);
}

void UTPopOverData::setArrowAlignment(UTPopOverEnum::ArrowAlignment alignment)
{
    set(m_arrowAlignment, alignment, &UTPopOverData::arrowAlignmentChanged);
}

void UTPopOverData::setArrowAnchor(UTPopOverEnum::ArrowAnchor anchor)
{
    set(m_arrowAnchor, anchor, &UTPopOverData::arrowAnchorChanged);
}

void UTPopOverData::setSize(UTPopOverEnum::Size size)
{
    set(m_size, size, &UTPopOverData::sizeChanged);
}

void UTPopOverData::setPopOverPosition(const QPoint &position)
{
    set(m_popOverPosition, position, &UTPopOverData::popOverPositionChanged);
}

void UTPopOverData::setTargetItemRect(const QRect &rect)
{
    set(m_targetItemRect, rect, &UTPopOverData::targetItemRectChanged);
}

void UTPopOverData::setPopOverSize(const QSize &size)
{
    set(m_popOverSize, size, &UTPopOverData::popOverSizeChanged);
}

void UTPopOverData::setArrowVisible(bool visible)
{
    set(m_arrowVisible, visible, &UTPopOverData::arrowVisibleChanged);
}

void UTPopOverData::setArrowSize(int size)
{
    set(m_arrowSize, size, &UTPopOverData::arrowSizeChanged);
}

void UTPopOverData::setRadius(int radius)
{
    set(m_radius, radius, &UTPopOverData::radiusChanged);
}

void UTPopOverData::refresh()
{
    if (size_t(m_size) >= sizeClasses.size())
        return;
    const SizeClass &sizeClass = sizeClasses[size_t(m_size)];
    setArrowSize(m_arrowVisible ? sizeClass.arrowSize : 0);
    setRadius(sizeClass.radius);
}

void UTPopOverData::place()
{
    const PopOverPlacement::Request request = {.target = m_targetItemRect,
                                               .size = m_popOverSize,
                                               .anchor = m_arrowAnchor,
                                               .alignment = m_arrowAlignment,
                                               .arrowSize = m_arrowSize,
                                               .radius = m_radius,
                                               .arrowOffset = m_requestedOffset};
    const PopOverPlacement::Place place =
        PopOverPlacement::place(request, PopOverPlacement::screenFor(m_targetItemRect, screens()));
    set(m_effectiveOffset, place.arrowOffset, &UTPopOverData::arrowOffsetChanged);
    setArrowAnchor(place.anchor);
    setPopOverPosition(place.position);
}
