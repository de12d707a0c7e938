#pragma once

#include <QObject>

#include "korvuui_export.h"

//! What a pop-over is to be, for applications that decide it in C++. Each property can be written at any time.
class KORVUUI_EXPORT UTPopOverModel : public QObject
{
    Q_OBJECT
    //! Where on its side the arrow sits: 0 left, 1 centre, 2 right, 3 top, 4 bottom. 1 by default.
    Q_PROPERTY(int arrowAlignment MEMBER m_arrowAlignment NOTIFY arrowAlignmentChanged FINAL)
    //! The side of the balloon that carries the arrow: 0 none, 1 top, 2 bottom, 3 left, 4 right. 1 by default.
    Q_PROPERTY(int arrowAnchor MEMBER m_arrowAnchor NOTIFY arrowAnchorChanged FINAL)
    //! Size class: 0 small, the default, 1 medium.
    Q_PROPERTY(int size MEMBER m_size NOTIFY sizeChanged FINAL)
    //! Pixels by which the arrow is moved on its side; 0 by default.
    Q_PROPERTY(int arrowOffset MEMBER m_arrowOffset NOTIFY arrowOffsetChanged FINAL)
    //! Whether the pop-over's window becomes the active one; true by default.
    Q_PROPERTY(bool showWithActive MEMBER m_showWithActive NOTIFY showWithActiveChanged FINAL)

public:
    using QObject::QObject;

Q_SIGNALS:
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void sizeChanged();
    void arrowOffsetChanged();
    void showWithActiveChanged();

private:
    int m_arrowAlignment = 1;
    int m_arrowAnchor = 1;
    int m_size = 0;
    int m_arrowOffset = 0;
    bool m_showWithActive = true;
};
