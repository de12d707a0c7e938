#pragma once

#include <QQuickWindow>

//! The window of a tool tip: see ToolTipWindowManager::getWindow().
class ToolTipWindow : public QQuickWindow
{
    Q_OBJECT

public:
    ToolTipWindow();

    //! Goes where \a item is.
    void moveTo(QQuickItem *item);

private:
    void adjustSize();

    QQuickItem *m_container;
    QMetaObject::Connection m_hiding;
};
