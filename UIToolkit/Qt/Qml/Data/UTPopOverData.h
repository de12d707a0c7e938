#pragma once

#include "KObject.h"
#include "UTPopOverEnum.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QtQml/qqml.h>

/*!
 * Places a balloon window beside a target: a pop-over, a tool tip or a menu.
 *
 * Where the preferred place does not fit on the screen the balloon moves to the other side of the
 * target, or along it, and the arrow moves the other way. Each change of the target or of the size
 * places anew; the other inputs take effect with the next such change.
 */
class UTPopOverData : public KObject
{
    Q_OBJECT
    //! Where along its side the arrow sits. LeftAlignment by default.
    Q_PROPERTY(UTPopOverEnum::ArrowAlignment arrowAlignment READ arrowAlignment WRITE setArrowAlignment NOTIFY
                   arrowAlignmentChanged FINAL)
    //! The side of the balloon that carries the arrow, None by default. Placing rewrites it when it moves the balloon to
    //! another side of the target.
    Q_PROPERTY(
        UTPopOverEnum::ArrowAnchor arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY arrowAnchorChanged FINAL)
    //! Size class, Small by default; decides arrowSize and radius.
    Q_PROPERTY(UTPopOverEnum::Size size READ size WRITE setSize NOTIFY sizeChanged FINAL)
    //! Where the balloon's window goes: its top left corner in global coordinates.
    Q_PROPERTY(QPoint popOverPosition READ popOverPosition WRITE setPopOverPosition NOTIFY popOverPositionChanged FINAL)
    //! The target in global coordinates, with the margin around it.
    Q_PROPERTY(QRect targetItemRect READ targetItemRect WRITE setTargetItemRect NOTIFY targetItemRectChanged FINAL)
    //! Size of the balloon's window. Invalid by default.
    Q_PROPERTY(QSize popOverSize READ popOverSize WRITE setPopOverSize NOTIFY popOverSizeChanged FINAL)
    //! Whether an arrow is drawn; false by default.
    Q_PROPERTY(bool arrowVisible READ arrowVisible WRITE setArrowVisible NOTIFY arrowVisibleChanged FINAL)
    //! Length of the arrow in pixels: 10 or 16 by size class, 0 without an arrow.
    Q_PROPERTY(int arrowSize READ arrowSize WRITE setArrowSize NOTIFY arrowSizeChanged FINAL)
    //! Radius of the corners in pixels: 8 or 10 by size class.
    Q_PROPERTY(int radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)
    //! Written: how far the arrow shall be off its place, in pixels; signals nothing. Read: how far it is since the last
    //! placing, with the way that the balloon was moved along its target.
    Q_PROPERTY(int arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged FINAL)

public:
    explicit UTPopOverData(QObject *parent = nullptr);

    static UTPopOverData *qmlAttachedProperties(QObject *attachee) { return new UTPopOverData(attachee); }

    UTPopOverEnum::ArrowAlignment arrowAlignment() const { return m_arrowAlignment; }
    UTPopOverEnum::ArrowAnchor arrowAnchor() const { return m_arrowAnchor; }
    UTPopOverEnum::Size size() const { return m_size; }
    QPoint popOverPosition() const { return m_popOverPosition; }
    QRect targetItemRect() const { return m_targetItemRect; }
    QSize popOverSize() const { return m_popOverSize; }
    bool arrowVisible() const { return m_arrowVisible; }
    int arrowSize() const { return m_arrowSize; }
    int radius() const { return m_radius; }
    int arrowOffset() const { return m_effectiveOffset; }

    void setArrowAlignment(UTPopOverEnum::ArrowAlignment alignment);
    void setArrowAnchor(UTPopOverEnum::ArrowAnchor anchor);
    void setSize(UTPopOverEnum::Size size);
    void setPopOverPosition(const QPoint &position);
    void setTargetItemRect(const QRect &rect);
    void setPopOverSize(const QSize &size);
    void setArrowVisible(bool visible);
    void setArrowSize(int size);
    void setRadius(int radius);
    void setArrowOffset(int offset) { m_requestedOffset = offset; }

public Q_SLOTS:
    //! Takes arrow size and radius from the size class.
    void refresh();

Q_SIGNALS:
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void sizeChanged();
    void popOverPositionChanged();
    void targetItemRectChanged();
    void popOverSizeChanged();
    void arrowVisibleChanged();
    void arrowSizeChanged();
    void radiusChanged();
    void arrowOffsetChanged();

private:
    void place();
    void placeOnce();

    template<typename T>
    void set(T &member, const T &value, void (UTPopOverData::*changed)())
    {
        if (member == value)
            return;
        member = value;
        Q_EMIT(this->*changed)();
    }

    QRect m_targetItemRect;
    QSize m_popOverSize;
    QPoint m_popOverPosition;
    UTPopOverEnum::ArrowAlignment m_arrowAlignment = UTPopOverEnum::LeftAlignment;
    UTPopOverEnum::ArrowAnchor m_arrowAnchor = UTPopOverEnum::None;
    UTPopOverEnum::Size m_size = UTPopOverEnum::Small;
    int m_arrowSize = 0;
    int m_radius = 0;
    int m_requestedOffset = 0;
    int m_effectiveOffset = 0;
    bool m_arrowVisible = false;
    bool m_isPlacing = false;
    bool m_isOutdated = false;
};

QML_DECLARE_TYPEINFO(UTPopOverData, QML_HAS_ATTACHED_PROPERTIES)
