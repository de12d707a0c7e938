#include "PopOverPlacement.h"

namespace {

using namespace PopOverPlacement;
using namespace UTPopOverEnum;

// The inclusive edges of QRect are meant throughout.
class Placement
{
public:
    Placement(const Request &request, const QRect &available, const Listener &stepped)
        : m_request(request)
        , m_screen(available)
        , m_stepped(stepped)
        , m_place{{}, request.anchor, request.arrowOffset}
    {
    }

    Place result()
    {
        tell();
        m_place.position = fit(preferred(), true);
        return m_place;
    }

private:
    void tell() const
    {
        if (m_stepped)
            m_stepped(m_place);
    }

    void turnTo(ArrowAnchor anchor)
    {
        m_place.anchor = anchor;
        tell();
    }

    bool isHorizontal() const { return m_place.anchor == Left || m_place.anchor == Right; }
    bool isVertical() const { return m_place.anchor == Top || m_place.anchor == Bottom; }

    // Aligned along the side that carries the arrow, whose tip is at \a center of the target.
    int aligned(int center, int length, ArrowAlignment start, ArrowAlignment end) const
    {
        const int tip = m_request.arrowSize + m_request.radius;
        if (m_request.alignment == start)
            return center - tip;
        if (m_request.alignment == end)
            return center - length + tip;
        return center - length / 2;
    }

    int preferredX() const
    {
        const QRect &target = m_request.target;
        switch (m_place.anchor) {
        case Left:
            return target.right() + gap;
        case Right:
            return target.left() - m_request.size.width() - gap;
        default:
            return aligned(target.right() - m_request.arrowOffset - target.width() / 2, m_request.size.width(),
                           LeftAlignment, RightAlignment);
        }
    }

    int preferredY() const
    {
        const QRect &target = m_request.target;
        switch (m_place.anchor) {
        case Bottom:
            return target.top() - m_request.size.height() - gap;
        case Top:
            return target.bottom() + gap;
        case Left:
        case Right:
            return aligned(target.bottom() - m_request.arrowOffset - target.height() / 2, m_request.size.height(),
                           TopAlignment, BottomAlignment);
        default:
            return target.top();
        }
    }

    QRect preferred() const { return QRect(QPoint(preferredX(), preferredY()), m_request.size); }

    // Some of these steps look odd and are meant: a flip to the side that does not fit either ends above the target, a flip
    // up or down that does not fit ends on its left, and the vertical steps judge the rectangle as it was before any flip.
    QPoint fit(const QRect &balloon, bool isFirstPass)
    {
        QPoint position = balloon.topLeft();
        if (m_screen.isNull() || m_screen.right() - m_screen.left() < balloon.right() - balloon.left()
            || m_screen.bottom() - m_screen.top() < balloon.bottom() - balloon.top())
            return position;

        bool needsSecondPass = false;
        bool sideFails = false;
        const auto slideTo = [&](int &coordinate, int from, int to) {
            coordinate = to;
            m_place.arrowOffset = m_request.arrowOffset + from - to;
            tell();
        };

        if (balloon.left() < m_screen.left()) {
            if (isVertical()) {
                slideTo(position.rx(), balloon.left(), m_screen.left() + edgeDistance);
            } else if (m_place.anchor == Right) {
                turnTo(Left);
                sideFails = preferredX() + m_request.size.width() > m_screen.right();
                needsSecondPass = true;
            }
        } else if (balloon.right() > m_screen.right()) {
            if (isVertical()) {
                slideTo(position.rx(), balloon.left(), m_screen.right() - m_request.size.width() - edgeDistance);
            } else if (m_place.anchor == Left) {
                turnTo(Right);
                sideFails = preferredX() < m_screen.left();
                needsSecondPass = true;
            }
        }
        if (sideFails)
            turnTo(Bottom);

        if (balloon.top() < m_screen.top()) {
            if (isHorizontal()) {
                slideTo(position.ry(), balloon.top(), m_screen.top() + edgeDistance);
            } else if (m_place.anchor == Bottom) {
                turnTo(Top);
                if (preferredY() + m_request.size.height() > m_screen.bottom())
                    turnTo(Right);
                needsSecondPass = true;
            }
        } else if (balloon.bottom() > m_screen.bottom()) {
            if (isHorizontal()) {
                slideTo(position.ry(), balloon.top(), m_screen.bottom() - m_request.size.height() - edgeDistance);
            } else if (m_place.anchor == Top) {
                turnTo(Bottom);
                if (preferredY() < m_screen.top())
                    turnTo(Right);
                needsSecondPass = true;
            }
        }
        return needsSecondPass && isFirstPass ? fit(preferred(), false) : position;
    }

    const Request &m_request;
    const QRect m_screen;
    const Listener &m_stepped;
    Place m_place;
};

} // namespace

QRect PopOverPlacement::screenFor(const QRect &target, const QList<Screen> &screens)
{
    QRect best;
    qint64 bestArea = -1;
    for (const Screen &screen : screens) {
        const QRect shown = screen.geometry.intersected(target);
        const qint64 area = qint64(shown.width()) * shown.height();
        if (area > bestArea) {
            bestArea = area;
            best = screen.available;
        }
    }
    return best;
}

Place PopOverPlacement::place(const Request &request, const QRect &available, const Listener &stepped)
{
    return Placement(request, available, stepped).result();
}
