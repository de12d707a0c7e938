#pragma once

#include <QObject>
#include <QString>

#include "KColorSet.h"
#include "korvuui_export.h"

class QKeyEvent;
class QWindow;

//! What the interface needs to know of the application: colours, how the user navigates, and the user's wishes.
class KORVUUI_EXPORT App : public QObject
{
    Q_OBJECT
    //! True while the user navigates by keyboard, so that the focused item should be marked. Tab, Backtab, the arrow
    //! keys, Home, End, Page Up, Page Down and F6 turn it on (the four movement keys not while they move a text
    //! cursor), a press of mouse, pen or finger turns it off, and typing or a change of the window leaves it. False at
    //! the start.
    Q_PROPERTY(bool isKeyboardFocus READ isKeyboardFocus WRITE setKeyboardFocus NOTIFY isKeyboardFocusChanged FINAL)
    //! True when things should appear in their final state at once. False until it is set.
    Q_PROPERTY(bool animationsDisabled READ animationsDisabled WRITE setAnimationsDisabled NOTIFY
                   animationsDisabledChanged FINAL)
    //! Factor on every font size, 1 at the start, kept within 0.5 and 4. Anything that is not a positive number is
    //! warned about and changes nothing.
    Q_PROPERTY(qreal textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged FINAL)

public:
    //! The one instance. Its tracking of the user's input begins with the first call.
    static App *instance();

    //! The colour set \a name in the palette that \a themeType ("global", "light", "dark", "highContrast") stands for;
    //! without a theme type, in the application's theme. An unknown name gives an invalid set.
    Q_INVOKABLE KColorSet getColorSet(const QString &name) const;
    Q_INVOKABLE KColorSet getColorSet(const QString &name, const QString &themeType) const;

    bool isKeyboardFocus() const { return m_keyboardFocus; }
    void setKeyboardFocus(bool keyboardFocus);
    bool animationsDisabled() const { return m_animationsDisabled; }
    void setAnimationsDisabled(bool disabled);
    qreal textScale() const { return m_textScale; }
    void setTextScale(qreal scale);

    //! True while Tab or Backtab is held down, so in handlers of the focus change that the key causes.
    Q_INVOKABLE bool isTabKeyPressed() const { return m_tabKeyPressed; }
    //! True while a mouse button or a finger is held down.
    Q_INVOKABLE bool isMousePressed() const;

    //! Counts \a key as held down while \a send runs: for keys that the program presses itself.
    template<typename Function>
    void withSimulatedKey(int key, Function send)
    {
        const bool before = m_tabKeyPressed;
        m_tabKeyPressed = before || isTabKey(key);
        send();
        m_tabKeyPressed = before;
    }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void isKeyboardFocusChanged();
    void animationsDisabledChanged();
    void textScaleChanged();
    //! \a focusWindow is null when no window of the application has the focus any more.
    void focusWindowChanged(QWindow *focusWindow);

private:
    template<typename T>
    friend T *applicationObject();
    explicit App(QObject *parent);

    static bool isTabKey(int key);
    void handleKeyPress(const QKeyEvent *event);

    qreal m_textScale = 1;
    bool m_keyboardFocus = false;
    bool m_animationsDisabled = false;
    bool m_tabKeyPressed = false;
    bool m_touching = false;
};
