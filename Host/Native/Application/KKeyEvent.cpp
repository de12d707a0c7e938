#include "KKeyEvent.h"

#include <QKeyEvent>

KKeyEvent::KKeyEvent(QObject *parent)
    : QObject(parent)
{
}

void KKeyEvent::setKeyEvent(const QKeyEvent *event)
{
    if (!event)
        return;
    m_key = event->key();
    m_modifiers = event->modifiers().toInt();
    m_text = event->text();
    m_isAutoRepeat = event->isAutoRepeat();
    Q_EMIT keyEventChanged();
}
