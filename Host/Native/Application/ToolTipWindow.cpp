#include "ToolTipWindow.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QScreen>

#include <cmath>

ToolTipWindow::ToolTipWindow()
    : m_container(new QQuickItem(contentItem()))
{
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowTransparentForInput
             | Qt::WindowDoesNotAcceptFocus);
    setColor(Qt::transparent);
    resize(1, 1);
    connect(m_container, &QQuickItem::childrenRectChanged, this, &ToolTipWindow::adjustSize);
    adjustSize(); // the first reading begins the tracking
}

void ToolTipWindow::moveTo(QQuickItem *item)
{
    // Within a widget, what the user sees is another window.
    QWindow *host = QQuickRenderControl::renderWindowFor(item->window());
    if (!host)
        host = item->window();
    if (transientParent() != host) {
        disconnect(m_hiding);
        hide();
        setTransientParent(host);
        m_hiding = connect(host, &QWindow::visibleChanged, this, [this](bool visible) {
            if (!visible)
                hide();
        });
    }
    const QPointF middle = item->mapToGlobal(item->boundingRect().center());
    QScreen *under = QGuiApplication::screenAt(middle.toPoint());
    setScreen(under ? under : host->screen());
}

void ToolTipWindow::adjustSize()
{
    const QRectF content = m_container->childrenRect();
    m_container->setSize({content.right(), content.bottom()});
    resize(std::max(1, int(std::ceil(content.right()))), std::max(1, int(std::ceil(content.bottom()))));
}
