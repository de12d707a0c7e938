#include "UTColorData.h"

#include <KThemeUtils.h>
#include <ThemeManager.h>

UTColorData::UTColorData(QObject *parent)
    : KObject(parent)
{
}

UTColorData *UTColorData::qmlAttachedProperties(QObject *attachee)
{
    return new UTColorData(attachee);
}

void UTColorData::setToken(const QString &token)
{
    if (m_token == token)
        return;
    m_token = token;
    Q_EMIT tokenChanged();
    onColorDataChanged();
}

void UTColorData::setActiveToken(const QString &activeToken)
{
    if (m_activeToken == activeToken)
        return;
    m_activeToken = activeToken;
    Q_EMIT activeTokenChanged();
    onColorDataChanged();
}

void UTColorData::setThemeType(const QString &themeType)
{
    if (m_themeType == themeType)
        return;
    m_themeType = themeType;
    onColorDataChanged();
}

void UTColorData::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
}

void UTColorData::setColorCustomized(bool colorCustomized)
{
    if (m_colorCustomized == colorCustomized)
        return;
    m_colorCustomized = colorCustomized;
    Q_EMIT colorCustomizedChanged();
}

void UTColorData::setEventData(UTEventData *eventData, Following following)
{
    if (m_eventData == eventData)
        return;
    if (m_eventData)
        disconnect(m_eventData, nullptr, this, nullptr);
    m_eventData = eventData;
    if (eventData && following == Follows) {
        // Queued once more, so that bindings which react to the state have settled too.
        connect(eventData, &UTEventData::eventDataChanged, this, &UTColorData::onEventDataChanged,
                Qt::QueuedConnection);
    }
    Q_EMIT eventDataChanged();
}

void UTColorData::onColorDataChanged()
{
    followTheme();
    const AppThemeType themeType = KThemeUtils::stringToThemeType(m_themeType);
    m_colorSet = KThemeUtils::getColorSet(m_token.toUtf8(), themeType);
    if (!m_activeToken.isEmpty())
        m_activeColorSet = KThemeUtils::getColorSet(m_activeToken.toUtf8(), themeType);
    else if (m_activeColorSet.isValid())
        m_activeColorSet = KColorSet();
    onEventDataChanged();
}

void UTColorData::onEventDataChanged()
{
    if (!m_colorCustomized)
        setColor(stateColor());
}

QColor UTColorData::stateColor() const
{
    if (!m_colorSet.isValid() || !m_eventData)
        return Qt::transparent;

    // The last state that applies wins. The order differs from that of the script rule on purpose:
    // a checked button shows its hover colour here.
    const KColorSet &set = m_eventData->checked() && m_activeColorSet.isValid() ? m_activeColorSet : m_colorSet;
    QColor color = set.normal();
    if (m_eventData->activeFocus())
        color = set.focused();
    if (m_eventData->checked())
        color = set.checked();
    if (m_eventData->hovered())
        color = set.hovered();
    if (m_eventData->pressed())
        color = set.pressed();
    if (!m_eventData->enabled())
        color = set.disabled();
    return color;
}

void UTColorData::followTheme()
{
    if (m_followsTheme || (m_token.isEmpty() && m_activeToken.isEmpty()))
        return;
    m_followsTheme = true;
    connect(ThemeManager::instance(), &ThemeManager::globalThemeChanged, this, &UTColorData::onColorDataChanged);
}
