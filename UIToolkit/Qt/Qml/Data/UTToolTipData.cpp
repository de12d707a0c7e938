#include "UTToolTipData.h"

#include "ComponentName.h"

UTToolTipData::UTToolTipData(QObject *attachee)
    : KObject(attachee)
{
    // Names itself, not the component, and that is the text that applications know.
    if (ComponentName::of(attachee) != "UTToolTip")
        qWarning("This property can't be used outside it's supported component (UTToolTipData).");
}

UTToolTipData *UTToolTipData::qmlAttachedProperties(QObject *attachee)
{
    return new UTToolTipData(attachee);
}

void UTToolTipData::setFocused(bool focused)
{
    setReason(m_focused, focused, &UTToolTipData::focusedChanged);
}

void UTToolTipData::setHovered(bool hovered)
{
    setReason(m_hovered, hovered, &UTToolTipData::hoveredChanged);
}

void UTToolTipData::setActive(bool active)
{
    setReason(m_active, active, &UTToolTipData::activeChanged);
}

void UTToolTipData::setVisible(bool visible)
{
    if (m_visible == visible)
        return;
    m_visible = visible;
    Q_EMIT visibleChanged();
}

void UTToolTipData::setReason(bool &reason, bool value, void (UTToolTipData::*changed)())
{
    if (reason == value)
        return;
    reason = value;
    Q_EMIT(this->*changed)();
    m_visible = value;
    Q_EMIT visibleChanged();
}
