#pragma once

#include "KBalloonShape.h"
#include "korvuui_export.h"

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QQuickWindow>

/*!
    A balloon with an arrow on one side: the ground of tool tips, pop-overs and menus. The arrow lies within the item,
    so content keeps arrowSize away from the side that carries it.

        KBalloon {
            width: 200; height: 60
            arrowAnchor: KBalloon.Top
            arrowAlignment: KBalloon.CenterAlignment
            backgroundColor: "white"
            borderColor: "silver"
        }

    Anchor and alignment are plain integers, so that enumerations of the same values from elsewhere fit. They are not
    mirrored for right-to-left text: whoever places a balloon knows which side its target is on.

    A transparent window that a balloon fills takes its outline where the display would show black corners.
*/
class KORVUUI_EXPORT KBalloon : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(int arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY arrowAnchorChanged FINAL)
    Q_PROPERTY(int arrowAlignment READ arrowAlignment WRITE setArrowAlignment NOTIFY arrowAlignmentChanged FINAL)
    Q_PROPERTY(qreal arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged FINAL)
    Q_PROPERTY(qreal arrowSize READ arrowSize WRITE setArrowSize NOTIFY arrowSizeChanged FINAL)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged FINAL)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged FINAL)
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderWidthChanged FINAL)

public:
    //! The side that carries the arrow.
    enum ArrowAnchor {
        None = KBalloonShape::None,
        Top = KBalloonShape::Top,
        Bottom = KBalloonShape::Bottom,
        Left = KBalloonShape::Left,
        Right = KBalloonShape::Right
    };
    Q_ENUM(ArrowAnchor)

    //! Where along its side the arrow sits.
    enum ArrowAlignment {
        LeftAlignment = KBalloonShape::LeftAlignment,
        CenterAlignment = KBalloonShape::CenterAlignment,
        RightAlignment = KBalloonShape::RightAlignment,
        TopAlignment = KBalloonShape::TopAlignment,
        BottomAlignment = KBalloonShape::BottomAlignment
    };
    Q_ENUM(ArrowAlignment)

    explicit KBalloon(QQuickItem *parent = nullptr);
    ~KBalloon() override;

    //! An ArrowAnchor; None by default.
    int arrowAnchor() const;
    void setArrowAnchor(int anchor);

    //! An ArrowAlignment; CenterAlignment by default, and where the value does not fit the side.
    int arrowAlignment() const;
    void setArrowAlignment(int alignment);

    //! Pixels that the arrow moves right or down from where it is aligned; 0 by default. It stays off the corners.
    qreal arrowOffset() const;
    void setArrowOffset(qreal offset);

    //! Length of the arrow in pixels, 10 by default; its root is twice as wide. 0 shows none.
    qreal arrowSize() const;
    void setArrowSize(qreal size);

    //! Radius of the corners in pixels; 8 by default.
    qreal radius() const;
    void setRadius(qreal radius);

    //! White by default.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

    //! Transparent by default.
    QColor borderColor() const;
    void setBorderColor(const QColor &color);

    //! Width in pixels, 1 by default, drawn inside the outline and rounded to whole device pixels.
    qreal borderWidth() const;
    void setBorderWidth(qreal width);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void arrowAnchorChanged();
    void arrowAlignmentChanged();
    void arrowOffsetChanged();
    void arrowSizeChanged();
    void radiusChanged();
    void backgroundColorChanged();
    void borderColorChanged();
    void borderWidthChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    bool fillsWindow() const;
    QPainterPath cut(const QRectF &bounds) const;
    void watchWindow(QQuickWindow *window);
    void shapeWindow();

    template<typename T>
    void change(T &member, const T &value, void (KBalloon::*changed)());

    KBalloonShape m_shape;
    QPointer<QQuickWindow> m_shaped;
    QMetaObject::Connection m_resizes[2];
    bool m_isMasked = false;
    QColor m_backgroundColor{Qt::white};
    QColor m_borderColor{Qt::transparent};
    qreal m_borderWidth = 1;
};
