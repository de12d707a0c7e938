#include "UTEventData.h"

#include <QMetaMethod>
#include <QMetaProperty>

namespace {

struct Flag
{
    const char *name;
    void (UTEventData::*set)(bool);
};

constexpr Flag flags[UTEventData::FlagCount] = {
    {"enabled", &UTEventData::setEnabled},         {"hovered", &UTEventData::setHovered},
    {"activeFocus", &UTEventData::setActiveFocus}, {"checked", &UTEventData::setChecked},
    {"pressed", &UTEventData::setPressed},
};

} // namespace

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

void UTEventData::setSource(QObject *source)
{
    if (m_source == source)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    if (source) {
        static const int changed = staticMetaObject.indexOfSlot("readSource()");
        const QMetaObject *metaObject = source->metaObject();
        for (int i = 0; i < FlagCount; ++i) {
            m_sourceProperties[i] = metaObject->indexOfProperty(flags[i].name);
            if (m_sourceProperties[i] < 0)
                continue;
            const QMetaProperty property = metaObject->property(m_sourceProperties[i]);
            if (property.hasNotifySignal())
                QMetaObject::connect(source, property.notifySignalIndex(), this, changed);
        }
        readSource();
    }
    Q_EMIT sourceChanged();
}

void UTEventData::readSource()
{
    const QMetaObject *metaObject = m_source->metaObject();
    for (int i = 0; i < FlagCount; ++i) {
        if (m_sourceProperties[i] >= 0)
            (this->*flags[i].set)(metaObject->property(m_sourceProperties[i]).read(m_source).toBool());
    }
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
