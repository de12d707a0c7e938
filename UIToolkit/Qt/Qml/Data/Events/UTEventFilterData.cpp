#include "UTEventFilterData.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>

UTEventFilterData::UTEventFilterData(QObject *attachee)
    : KObject(attachee)
    , m_keyPressEvent(new KKeyEvent(this))
{
    if (attachee)
        attachee->installEventFilter(this);
}

UTEventFilterData *UTEventFilterData::qmlAttachedProperties(QObject *attachee)
{
    return new UTEventFilterData(attachee);
}

void UTEventFilterData::setProcessKeySequences(const QStringList &sequences)
{
    if (m_sequences == sequences)
        return;
    m_sequences = sequences;
    m_combinations.clear();
    for (const QString &text : sequences) {
        const QKeyCombination combination = QKeySequence::fromString(text, QKeySequence::NativeText)[0];
        // A text that names no key is like an empty one: a key of 0 and no modifiers.
        m_combinations << (combination.key() == Qt::Key_unknown ? QKeyCombination::fromCombined(0) : combination);
    }
}

bool UTEventFilterData::eventFilter(QObject *watched, QEvent *event)
{
    // A listener may destroy the item and this object with it; then nobody is left to get the event.
    const QPointer<QObject> guard(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (m_listenFocusIn)
            Q_EMIT focusInEvent(static_cast<QFocusEvent *>(event)->reason());
        return !guard;
    case QEvent::MouseButtonRelease:
        if (m_listenMouseRelease && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            Q_EMIT mouseLeftButtonReleased();
        return !guard;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        return filterKey(static_cast<QKeyEvent *>(event)) || !guard;
    default:
        return false;
    }
}

bool UTEventFilterData::filterKey(QKeyEvent *event)
{
    m_keyPressEvent->setKeyEvent(event);
    // Not the event's own keyCombination(): that has no key where the event's is none that Qt knows.
    if (!m_combinations.contains(QKeyCombination(event->modifiers(), Qt::Key(event->key()))))
        return false;
    // Of a shortcut override only the acceptance counts: it keeps shortcuts off the key, and the press follows.
    if (event->type() == QEvent::KeyPress)
        Q_EMIT kKeyPressEventChanged();
    event->accept();
    return true;
}
