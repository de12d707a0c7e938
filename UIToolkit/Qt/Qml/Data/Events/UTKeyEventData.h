#pragma once

#include "KObject.h"

#include <KKeyEvent.h>

#include <QtQml/qqml.h>

/*!
 * Reports every key event of the shortcut label that it is attached to, and keeps them from it while
 * the label records.
 *
 * A key that Qt offers as a shortcut override first is reported as pressed twice. That is on purpose:
 * the label must see keys that would have been shortcuts.
 */
class UTKeyEventData : public KObject
{
    Q_OBJECT
    Q_PROPERTY(KKeyEvent *kKeyPressEvent READ kKeyPressEvent NOTIFY kKeyPressEventChanged FINAL)
    Q_PROPERTY(KKeyEvent *kKeyReleaseEvent READ kKeyReleaseEvent NOTIFY kKeyReleaseEventChanged FINAL)
    //! True keeps key events from the label and from shortcuts, after they were reported. False by default.
    Q_PROPERTY(bool ignoreKeyEvents READ ignoreKeyEvents WRITE setIgnoreKeyEvents NOTIFY ignoreKeyEventsChanged FINAL)

public:
    explicit UTKeyEventData(QObject *attachee = nullptr);

    static UTKeyEventData *qmlAttachedProperties(QObject *attachee);

    KKeyEvent *kKeyPressEvent() const { return m_pressEvent; }
    KKeyEvent *kKeyReleaseEvent() const { return m_releaseEvent; }
    bool ignoreKeyEvents() const { return m_ignoreKeyEvents; }

    void setIgnoreKeyEvents(bool ignore);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void kKeyPressEventChanged();
    void kKeyReleaseEventChanged();
    void ignoreKeyEventsChanged();

private:
    KKeyEvent *m_pressEvent;
    KKeyEvent *m_releaseEvent;
    bool m_ignoreKeyEvents = false;
};

QML_DECLARE_TYPEINFO(UTKeyEventData, QML_HAS_ATTACHED_PROPERTIES)
