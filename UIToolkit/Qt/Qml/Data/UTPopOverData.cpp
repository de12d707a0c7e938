#include "UTPopOverData.h"

#include "PopOverPlacement.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
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

constexpr int maximumRounds = 4;

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

// A listener may answer a turned anchor with another size: an arrow takes room on its side. It is placed anew then, but
// not for ever, for with no room anywhere each of two sizes may ask for the other.
void UTPopOverData::place()
{
    m_isOutdated = true;
    if (m_isPlacing)
        return;
    const QScopedValueRollback placing(m_isPlacing, true);
    for (int round = 0; m_isOutdated && round < maximumRounds; ++round) {
        m_isOutdated = false;
        placeOnce();
    }
}

void UTPopOverData::placeOnce()
{
    const PopOverPlacement::Request request = {.target = m_targetItemRect,
                                               .size = m_popOverSize,
                                               .anchor = m_arrowAnchor,
                                               .alignment = m_arrowAlignment,
                                               .arrowSize = m_arrowSize,
                                               .radius = m_radius,
                                               .arrowOffset = m_requestedOffset};
    const auto take = [this](const PopOverPlacement::Place &place) {
        set(m_effectiveOffset, place.arrowOffset, &UTPopOverData::arrowOffsetChanged);
        setArrowAnchor(place.anchor);
    };
    const QRect screen = PopOverPlacement::screenFor(m_targetItemRect, screens());
    setPopOverPosition(PopOverPlacement::place(request, screen, take).position);
}
