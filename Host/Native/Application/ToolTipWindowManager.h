#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <QQuickItem>
#include <QQuickWindow>

#include "korvuui_export.h"

//! Supplies the windows that tool tips are shown in.
class KORVUUI_EXPORT ToolTipWindowManager : public QObject
{
    Q_OBJECT

public:
    static ToolTipWindowManager *instance();

    //! A hidden or showing window for the tool tip of \a item: frameless, transparent, on the screen that holds the middle
    //! of the item, above the item's window, and never in the way of pointer or focus. The first child of its content
    //! item takes the tool tip; the window is as large as what is in there, and at least 1 by 1.
    //!
    //! With \a shared the window serves all items of one window that ask so: right for tool tips of which one shows at a
    //! time. Without it the item has the window to itself. The same window is returned each time. It belongs to the host:
    //! it hides when the item's window does, and is gone with that window or, unshared, with the item.
    //!
    //! Null for an item that is in no window, and without any screen.
    Q_INVOKABLE QQuickWindow *getWindow(QQuickItem *item, bool shared = false);

private:
    template<typename T>
    friend T *applicationObject();
    explicit ToolTipWindowManager(QObject *parent);

    // By the item that has it to itself, or the window whose items share it.
    QHash<const QObject *, QPointer<QQuickWindow>> m_windows;
};
