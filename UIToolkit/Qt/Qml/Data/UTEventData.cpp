#include "UTEventData.h"

UTEventData::UTEventData(QObject *parent)
    : KObject(parent)
{
}

void UTEventData::setEnabled(bool enabled)
{
    setFlag(m_enabled, enabled, &UTEventData::enabledChanged);
}

void UTEventData::setHovered(bool hovered)
{
    setFlag(m_hovered, hovered, &UTEventData::hoveredChanged);
}

void UTEventData::setActiveFocus(bool activeFocus)
{
    setFlag(m_activeFocus, activeFocus, &UTEventData::activeFocusChanged);
}

void UTEventData::setChecked(bool checked)
{
    setFlag(m_checked, checked, &UTEventData::checkedChanged);
}

void UTEventData::setPressed(bool pressed)
{
    setFlag(m_pressed, pressed, &UTEventData::pressedChanged);
}

void UTEventData::setFlag(bool &flag, bool value, void (UTEventData::*changed)())
{
    if (flag == value)
        return;
    flag = value;
    Q_EMIT(this->*changed)();
    // Posting the summary does what five queued connections would do, without their cost at creation.
    QMetaObject::invokeMethod(this, &UTEventData::eventDataChanged, Qt::QueuedConnection);
}
