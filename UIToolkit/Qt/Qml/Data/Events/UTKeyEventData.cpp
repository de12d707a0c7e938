#include "UTKeyEventData.h"

#include "ComponentName.h"

#include <QKeyEvent>
#include <QPointer>

UTKeyEventData::UTKeyEventData(QObject *attachee)
    : KObject(attachee)
    , m_pressEvent(new KKeyEvent(this))
    , m_releaseEvent(new KKeyEvent(this))
{
    if (ComponentName::check(attachee, "UTShortcutsLabel"))
        attachee->installEventFilter(this);
}

UTKeyEventData *UTKeyEventData::qmlAttachedProperties(QObject *attachee)
{
    return new UTKeyEventData(attachee);
}

void UTKeyEventData::setIgnoreKeyEvents(bool ignore)
{
    if (m_ignoreKeyEvents == ignore)
        return;
    m_ignoreKeyEvents = ignore;
    Q_EMIT ignoreKeyEventsChanged();
}

bool UTKeyEventData::eventFilter(QObject *watched, QEvent *event)
{
    const bool isRelease = event->type() == QEvent::KeyRelease;
    if (!isRelease && event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;

    const QPointer<QObject> guard(watched);
    const QPointer<UTKeyEventData> self(this);
    (isRelease ? m_releaseEvent : m_pressEvent)->setKeyEvent(static_cast<QKeyEvent *>(event));
    if (isRelease)
        Q_EMIT kKeyReleaseEventChanged();
    else
        Q_EMIT kKeyPressEventChanged();
    // A listener may have destroyed the label, and what is attached to it.
    if (!guard || !self)
        return !guard;
    if (m_ignoreKeyEvents)
        event->accept();
    return m_ignoreKeyEvents;
}
