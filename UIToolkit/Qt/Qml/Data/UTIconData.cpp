#include "UTIconData.h"

void UTIconData::setNames(const Names &names)
{
    m_names = names;
    onEventDataChanged();
}

void UTIconData::setEventData(UTEventData *eventData)
{
    if (m_eventData == eventData)
        return;
    if (m_eventData)
        disconnect(m_eventData, nullptr, this, nullptr);
    m_eventData = eventData;
    if (eventData)
        connect(eventData, &UTEventData::eventDataChanged, this, &UTIconData::onEventDataChanged, Qt::QueuedConnection);
    Q_EMIT eventDataChanged();
    onEventDataChanged();
}

void UTIconData::onEventDataChanged()
{
    set(m_icon, QString(nameOfState()), &UTIconData::iconChanged);
}

QLatin1StringView UTIconData::nameOfState() const
{
    if (!m_eventData)
        return {};
    // The last state that applies wins: what is checked looks so even while disabled.
    QLatin1StringView name = m_names.normal;
    if (m_eventData->hovered())
        name = m_names.hovered;
    if (m_eventData->pressed())
        name = m_names.pressed;
    if (!m_eventData->enabled())
        name = m_names.disabled;
    if (m_eventData->checked())
        name = m_names.checked;
    return name;
}
