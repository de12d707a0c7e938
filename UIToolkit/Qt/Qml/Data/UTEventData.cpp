#include "UTEventData.h"

#include <QHash>
#include <QMetaMethod>
#include <QMetaProperty>

#include <array>
#include <cstring>

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

// Where a flag is found in a class: its property and the signal of its changes, -1 for none.
struct FlagProperty
{
    int index = -1;
    int notifySignal = -1;
    bool isPlainBool = false;
};
using FlagProperties = std::array<FlagProperty, UTEventData::FlagCount>;

FlagProperty findFlag(const QMetaObject *metaObject, const char *name)
{
    const int index = metaObject->indexOfProperty(name);
    if (index < 0)
        return {};
    const QMetaProperty property = metaObject->property(index);
    return {index, property.notifySignalIndex(), property.metaType() == QMetaType::fromType<bool>()};
}

// Searching the long list of an item's properties is what following an item costs, so the answers for compiled classes are
// kept. QML types come and go, and are searched for what their compiled class lacks.
FlagProperties findFlags(const QMetaObject *metaObject)
{
    const QMetaObject *compiled = metaObject;
    while (std::strstr(compiled->className(), "_QML"))
        compiled = compiled->superClass();

    static QHash<const QMetaObject *, FlagProperties> known;
    auto it = known.constFind(compiled);
    if (it == known.constEnd()) {
        FlagProperties found;
        for (size_t i = 0; i < found.size(); ++i)
            found[i] = findFlag(compiled, flags[i].name);
        it = known.insert(compiled, found);
    }
    FlagProperties properties = it.value();
    for (size_t i = 0; i < properties.size() && compiled != metaObject; ++i) {
        if (properties[i].index < 0)
            properties[i] = findFlag(metaObject, flags[i].name);
    }
    return properties;
}

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
        const FlagProperties properties = findFlags(source->metaObject());
        for (size_t i = 0; i < properties.size(); ++i) {
            m_sourceProperties[i] = properties[i].index;
            m_isPlainBool[i] = properties[i].isPlainBool;
            if (properties[i].notifySignal >= 0)
                QMetaObject::connect(source, properties[i].notifySignal, this, changed);
        }
        readSource();
    }
    Q_EMIT sourceChanged();
}

void UTEventData::setFollowsItem(bool followsItem)
{
    if (m_followsItem == followsItem)
        return;
    m_followsItem = followsItem;
    QObject *owner = parent();
    while (owner && !owner->isQuickItemType())
        owner = owner->parent();
    setSource(followsItem ? owner : nullptr);
    Q_EMIT followsItemChanged();
}

void UTEventData::readSource()
{
    for (size_t i = 0; i < FlagCount; ++i) {
        if (m_sourceProperties[i] < 0)
            continue;
        bool value = false;
        if (m_isPlainBool[i]) {
            void *arguments[] = {&value};
            QMetaObject::metacall(m_source, QMetaObject::ReadProperty, m_sourceProperties[i], arguments);
        } else {
            value = m_source->metaObject()->property(m_sourceProperties[i]).read(m_source).toBool();
        }
        const auto set = flags[i].set;
        (this->*set)(value);
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
