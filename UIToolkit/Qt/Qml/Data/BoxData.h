#pragma once

#include "ColorGroup.h"

#include <QSize>

/*! The colours of a box with an icon in it, and the metrics that all such boxes have. */
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

private:
    QSize m_iconSize = QSize(0, 0);
    int m_border = 0;
    int m_radius = 0;
};
