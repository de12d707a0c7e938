#include "UTColorSetData.h"

UTColorSetData::UTColorSetData(QObject *parent)
    : KObject(parent)
{
    for (Slot slot : {Background, Border, Text, Icon})
        m_colors[slot] = new UTColorData(this);
    connect(this, &UTColorSetData::eventDataChanged, this, &UTColorSetData::passOnEventData);
}

UTColorSetData *UTColorSetData::qmlAttachedProperties(QObject *attachee)
{
    return new UTColorSetData(attachee);
}

UTColorData *UTColorSetData::backgroundColorData() const
{
    return colorData(Background);
}

UTColorData *UTColorSetData::borderColorData() const
{
    return colorData(Border);
}

UTColorData *UTColorSetData::textColorData() const
{
    return colorData(Text);
}

UTColorData *UTColorSetData::iconColorData() const
{
    return colorData(Icon);
}

UTColorData *UTColorSetData::rightIconColorData() const
{
    return colorData(RightIcon);
}

UTColorData *UTColorSetData::colorData(Slot slot) const
{
    static constexpr const char *names[SlotCount] = {"Background", "Border", "Text", "Icon", "Right icon"};
    if (!m_colors[slot])
        qWarning("%s color data was not created.", names[slot]);
    return m_colors[slot];
}

void UTColorSetData::setThemeType(const QString &themeType)
{
    if (m_themeType == themeType)
        return;
    m_themeType = themeType;
    for (UTColorData *color : m_colors) {
        if (color)
            color->setThemeType(themeType);
    }
}

void UTColorSetData::setEventData(UTEventData *eventData)
{
    if (m_eventData == eventData)
        return;
    m_eventData = eventData;
    Q_EMIT eventDataChanged();
}

void UTColorSetData::passOnEventData()
{
    for (UTColorData *color : m_colors) {
        if (color)
            color->setEventData(m_eventData);
    }
}
