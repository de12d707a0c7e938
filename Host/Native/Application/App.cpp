#include "App.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QWindow>

#include "ApplicationObject.h"
#include "KThemeUtils.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr qreal smallestTextScale = 0.5;
constexpr qreal largestTextScale = 4;

constexpr int navigationKeys[] = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down,
                                  Qt::Key_Left, Qt::Key_Right,   Qt::Key_F6};
// In a text these are part of editing it.
constexpr int movementKeys[] = {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown};

template<std::size_t N>
bool contains(const int (&keys)[N], int key)
{
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

bool isTextFocused()
{
    QObject *focusObject = QGuiApplication::focusObject();
    if (!focusObject)
        return false;
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(focusObject, &query);
    return query.value(Qt::ImEnabled).toBool();
}

} // namespace

App *App::instance()
{
    return applicationObject<App>();
}

App::App(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &App::focusWindowChanged);
}

KColorSet App::getColorSet(const QString &name) const
{
    return KThemeUtils::getColorSet(name.toUtf8(), AppThemeType::Global);
}

KColorSet App::getColorSet(const QString &name, const QString &themeType) const
{
    return KThemeUtils::getColorSet(name.toUtf8(), KThemeUtils::stringToThemeType(themeType));
}

void App::setKeyboardFocus(bool keyboardFocus)
{
    if (m_keyboardFocus == keyboardFocus)
        return;
    m_keyboardFocus = keyboardFocus;
    Q_EMIT isKeyboardFocusChanged();
}

void App::setAnimationsDisabled(bool disabled)
{
    if (m_animationsDisabled == disabled)
        return;
    m_animationsDisabled = disabled;
    Q_EMIT animationsDisabledChanged();
}

void App::setTextScale(qreal scale)
{
    if (!std::isfinite(scale) || scale <= 0) {
        qWarning("App: %g is no text scale", scale);
        return;
    }
    const qreal bounded = std::clamp(scale, smallestTextScale, largestTextScale);
    if (qFuzzyCompare(m_textScale, bounded))
        return;
    m_textScale = bounded;
    Q_EMIT textScaleChanged();
}

bool App::isMousePressed() const
{
    return m_touching || QGuiApplication::mouseButtons() != Qt::NoButton;
}

bool App::isTabKey(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

void App::handleKeyPress(const QKeyEvent *event)
{
    // The window system's own keys, as Alt+Tab, tell nothing of how the user moves in here.
    if (event->modifiers() & (Qt::AltModifier | Qt::MetaModifier) && isTabKey(event->key()))
        return;
    if (isTabKey(event->key()) && event->type() == QEvent::KeyPress)
        m_tabKeyPressed = true;
    if (contains(navigationKeys, event->key()) || (contains(movementKeys, event->key()) && !isTextFocused()))
        setKeyboardFocus(true);
}

bool App::eventFilter(QObject *watched, QEvent *event)
{
    // All events of the application pass here, mouse moves by the hundred: those that do not count must cost nothing.
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // a key that a shortcut takes is not seen as a key press
        // Windows only: each key comes by a second time on its way to the focused item.
        if (watched->isWindowType())
            handleKeyPress(static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyRelease: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (watched->isWindowType() && isTabKey(key->key()) && !key->isAutoRepeat())
            m_tabKeyPressed = false;
        break;
    }
    case QEvent::FocusOut:
        // The release will go to another window, perhaps not one of ours.
        if (watched->isWindowType()) {
            m_tabKeyPressed = false;
            m_touching = false;
        }
        break;
    case QEvent::TouchBegin:
        m_touching = true;
        setKeyboardFocus(false);
        break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        m_touching = false;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TabletPress:
        if (watched->isWindowType())
            setKeyboardFocus(false);
        break;
    default:
        break;
    }
    return false;
}
