#include "ToolTipWindowManager.h"

#include <QGuiApplication>
#include <QQmlEngine>

#include "ApplicationObject.h"
#include "ToolTipWindow.h"

ToolTipWindowManager *ToolTipWindowManager::instance()
{
    return applicationObject<ToolTipWindowManager>();
}

ToolTipWindowManager::ToolTipWindowManager(QObject *parent)
    : QObject(parent)
{
    // None may linger on the screen while the application winds down.
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        const auto windows = std::exchange(m_windows, {});
        for (QQuickWindow *window : windows)
            delete window;
    });
}

QQuickWindow *ToolTipWindowManager::getWindow(QQuickItem *item, bool shared)
{
    if (!item || !item->window() || !QGuiApplication::primaryScreen())
        return nullptr;
    QObject *owner = shared ? static_cast<QObject *>(item->window()) : item;
    QPointer<QQuickWindow> &window = m_windows[owner];
    if (!window) {
        window = new ToolTipWindow;
        QQmlEngine::setObjectOwnership(window, QQmlEngine::CppOwnership);
        connect(owner, &QObject::destroyed, this, [this, owner] { delete m_windows.take(owner); });
    }
    static_cast<ToolTipWindow *>(window.data())->moveTo(item);
    return window;
}
