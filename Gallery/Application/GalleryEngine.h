#pragma once

#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

//! The gallery's window and the engine that runs it.
class GalleryEngine
{
public:
    GalleryEngine();

    //! Shows the window, for pictures as one that no pointer gets at. Returns false, with the errors logged, when it cannot be made.
    bool load(bool takesInput = true);

    QQmlEngine *engine() { return &m_engine; }
    //! Null before load().
    QQuickWindow *window() const { return m_window.get(); }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};
