#pragma once

#include <QCursor>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

#include <functional>
#include <memory>

/*!
 * The base of tests with real windows: a scene in a window that has the focus.
 *
 * A scene is a Window in QML; its items are found by objectName.
 */
class WindowTest : public QObject
{
protected:
    // Longer than any machine needs, for what a window manager has a say in.
    static constexpr int patience = 20000;

    //! Fails the test unless it returns true.
    bool show(const char *scene)
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        QCursor::setPos(1, 1);
        QQmlComponent component(&m_engine);
        component.setData(QByteArray("import QtQuick\nimport Korvu 1.0\nimport UIToolkitQml 1.0\n"
                                     "import UIToolkitQml_Private 1.0\nimport UIToolkitQml_Private_Data 1.0\n")
                              + scene,
                          QUrl());
        m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
        if (!m_window) {
            qCritical().noquote() << component.errorString();
            return false;
        }
        m_window->show();
        return activate(m_window.get());
    }

    void closeScene()
    {
        m_window.reset();
        // What the scene left to be deleted later.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    QQuickWindow *window() const { return m_window.get(); }
    QObject *object(const char *name) const { return m_window->findChild<QObject *>(QLatin1StringView(name)); }
    QQuickItem *item(const char *name) const { return m_window->findChild<QQuickItem *>(QLatin1StringView(name)); }

    //! All windows on display but the scene's.
    QList<QQuickWindow *> otherWindows() const
    {
        QList<QQuickWindow *> others;
        for (QWindow *candidate : QGuiApplication::topLevelWindows()) {
            auto *other = qobject_cast<QQuickWindow *>(candidate);
            if (other && other != window() && other->isVisible())
                others.append(other);
        }
        return others;
    }

    //! Does what a user does, by real events of the display: xdotool's words. A window manager trusts nothing less when it
    //! decides who may take the focus.
    static bool user(const QString &action)
    {
        return QProcess::execute(QStringLiteral("xdotool"), action.split(u' ')) == 0;
    }

    //! Presses \a key until \a happened: one pressed while the display hands the focus from window to window is lost.
    static bool press(const char *key, const std::function<bool()> &happened)
    {
        constexpr int wait = patience / 5;
        for (int time = 0; time < patience; time += wait) {
            if (user(QStringLiteral("key ") + QLatin1StringView(key)) && QTest::qWaitFor(happened, wait))
                return true;
        }
        return false;
    }

    //! Clicks into a corner of \a target, where no other window of the scene should cover it, once it is on display: a
    //! click that comes too early hits the desktop, which then has the focus.
    static bool activate(const QWindow *target)
    {
        int attempt = 0;
        return QTest::qWaitFor(
            [&] {
                if (!target->isExposed())
                    return false;
                const QPoint place = target->geometry().topLeft() + QPoint(12, 12);
                if (++attempt % 100 == 1)
                    user(QStringLiteral("mousemove %1 %2 click 1").arg(place.x()).arg(place.y()));
                return hasFocus(target);
            },
            patience);
    }

    //! Whether \a target itself has the focus; QWindow::isActive() counts its transient windows as well.
    static bool hasFocus(const QWindow *target) { return QGuiApplication::focusWindow() == target; }

    static QPoint globalCenter(const QQuickItem *item)
    {
        return item->mapToGlobal(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }

    QQmlEngine m_engine;

private:
    std::unique_ptr<QQuickWindow> m_window;
};

#define SHOW(scene) QVERIFY2(show(scene), "the scene does not show")
#define EVENTUALLY(condition) QVERIFY2(QTest::qWaitFor([&] { return bool(condition); }, patience), #condition)
