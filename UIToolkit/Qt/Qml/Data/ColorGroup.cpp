#include "ColorGroup.h"

#include <KThemeUtils.h>

ColorGroup::ColorGroup(QObject *parent, std::initializer_list<Slot> existing)
    : KObject(parent)
{
    for (Slot slot : existing)
        m_colors[slot] = new UTColorData(this);
    connect(this, &ColorGroup::eventDataChanged, this, &ColorGroup::passOnEventData);
}

UTColorData *ColorGroup::colorData(Slot slot) const
{
    static constexpr const char *names[SlotCount] = {"Background", "Border", "Text", "Icon", "Right icon"};
    if (!m_colors[slot])
        qWarning("%s color data was not created.", names[slot]);
    return m_colors[slot];
}

void ColorGroup::setThemeType(const QString &themeType)
{
    if (m_themeType == themeType)
        return;
    m_themeType = themeType;
    for (UTColorData *color : m_colors) {
        if (color)
            color->setThemeType(themeType);
    }
}

void ColorGroup::setEventData(UTEventData *eventData)
{
    if (m_eventData == eventData)
        return;
    if (m_eventData)
        disconnect(m_eventData, nullptr, this, nullptr);
    m_eventData = eventData;
    Q_EMIT eventDataChanged();
}

void ColorGroup::setToken(Slot slot, void (UTColorData::*setter)(const QString &), const QString &token)
{
    if (UTColorData *color = colorData(slot))
        (color->*setter)(token);
}

bool ColorGroup::isHighContrast()
{
    if (!m_highContrastAsked) {
        m_highContrast = KThemeUtils::isHighContrastEnabled();
        m_highContrastAsked = true;
    }
    return m_highContrast;
}

void ColorGroup::passOnEventData()
{
    // One queued call for the group, in place of one for each colour.
    if (m_eventData)
        connect(m_eventData, &UTEventData::eventDataChanged, this, &ColorGroup::updateColors, Qt::QueuedConnection);
    for (UTColorData *color : m_colors) {
        if (color)
            color->setEventData(m_eventData, UTColorData::OwnerFollows);
    }
}

void ColorGroup::updateColors()
{
    for (UTColorData *color : m_colors) {
        if (color)
            color->onEventDataChanged();
    }
}
