#pragma once

#include "ColorGroup.h"

#include <QQuickItem>
#include <QSize>

/*!
 * The colours of a box with an icon in it, and the metrics that all such boxes have.
 *
 * It paints the parts of its item by itself, which a component names by their object names: a
 * Rectangle "ground" gets the colours, border and radius of the box, a Text "label" the font and
 * colour of the text. Bindings would do the same, but six of them cost more than all the rest of a
 * button. Other parts, or parts of other names, are left alone.
 */
class BoxData : public ColorGroup
{
    Q_OBJECT
    //! Box of an icon in pixels.
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize NOTIFY iconSizeChanged FINAL)
    //! Width of the border in pixels: 1 where the box has a border colour, else 0.
    Q_PROPERTY(int border READ border WRITE setBorder NOTIFY borderChanged FINAL)
    //! Radius of the corners in pixels.
    Q_PROPERTY(int radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)

public:
    QSize iconSize() const { return m_iconSize; }
    int border() const { return m_border; }
    int radius() const { return m_radius; }

    void setIconSize(const QSize &size) { set(m_iconSize, size, &BoxData::iconSizeChanged); }
    void setBorder(int border) { set(m_border, border, &BoxData::borderChanged); }
    void setRadius(int radius) { set(m_radius, radius, &BoxData::radiusChanged); }

Q_SIGNALS:
    void iconSizeChanged();
    void borderChanged();
    void radiusChanged();

protected:
    using ColorGroup::ColorGroup;

    //! Paints the parts of \a item from now on, unless it is no item.
    void paintPartsOf(QObject *item);
    void paintGround();
    virtual void paintLabel();
    //! The item's part "label", or null.
    QQuickItem *label() const { return m_label; }

private:
    void findParts();
    void setGround(QQuickItem *part);
    void setLabel(QQuickItem *part);

    QPointer<QQuickItem> m_item;
    QPointer<QQuickItem> m_ground;
    QPointer<QQuickItem> m_label;
    QSize m_iconSize = QSize(0, 0);
    int m_border = 0;
    int m_radius = 0;
    bool m_followsGround = false;
    bool m_followsLabel = false;
};
