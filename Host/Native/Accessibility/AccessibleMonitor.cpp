#include "AccessibleMonitor.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QGuiApplication>
#include <QMetaEnum>

#include "Announcer.h"

#if defined(KORVUUI_HAS_PRIVATE_GUI)
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#endif

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct StateName
{
    QLatin1StringView name;
    bool (*isSet)(const QAccessible::State &);
};

// What readers speak; bit fields have no addresses, so each row brings a function.
constexpr StateName stateNames[] = {
    {"disabled"_L1, [](const QAccessible::State &s) { return bool(s.disabled); }},
    {"focusable"_L1, [](const QAccessible::State &s) { return bool(s.focusable); }},
    {"focused"_L1, [](const QAccessible::State &s) { return bool(s.focused); }},
    {"pressed"_L1, [](const QAccessible::State &s) { return bool(s.pressed); }},
    {"checkable"_L1, [](const QAccessible::State &s) { return bool(s.checkable); }},
    {"checked"_L1, [](const QAccessible::State &s) { return bool(s.checked); }},
    {"partially checked"_L1, [](const QAccessible::State &s) { return bool(s.checkStateMixed); }},
    {"selectable"_L1, [](const QAccessible::State &s) { return bool(s.selectable); }},
    {"selected"_L1, [](const QAccessible::State &s) { return bool(s.selected); }},
    {"expandable"_L1, [](const QAccessible::State &s) { return bool(s.expandable); }},
    {"expanded"_L1, [](const QAccessible::State &s) { return bool(s.expanded); }},
    {"has pop-up"_L1, [](const QAccessible::State &s) { return bool(s.hasPopup); }},
    {"editable"_L1, [](const QAccessible::State &s) { return bool(s.editable); }},
    {"read only"_L1, [](const QAccessible::State &s) { return bool(s.readOnly); }},
    {"multi-line"_L1, [](const QAccessible::State &s) { return bool(s.multiLine); }},
    {"password"_L1, [](const QAccessible::State &s) { return bool(s.passwordEdit); }},
    {"busy"_L1, [](const QAccessible::State &s) { return bool(s.busy); }},
    {"invisible"_L1, [](const QAccessible::State &s) { return bool(s.invisible); }},
};

struct EventKind
{
    QAccessible::Event event;
    AccessibleMonitor::Kind kind;
};

constexpr EventKind eventKinds[] = {
    {QAccessible::Focus, AccessibleMonitor::Kind::Focus},
    {QAccessible::NameChanged, AccessibleMonitor::Kind::Name},
    {QAccessible::DescriptionChanged, AccessibleMonitor::Kind::Description},
    {QAccessible::ValueChanged, AccessibleMonitor::Kind::Value},
    {QAccessible::StateChanged, AccessibleMonitor::Kind::State},
};

QString enumText(const QMetaEnum &metaEnum, int value)
{
    return QString::fromLatin1(metaEnum.valueToKey(value));
}

} // namespace

//! Sees every accessibility event of the application before it goes on to the platform.
class AccessibleEventTap
{
public:
    static void add(AccessibleMonitor *monitor)
    {
#if defined(KORVUUI_HAS_PRIVATE_GUI)
        if (monitors().isEmpty()) {
            if (QPlatformAccessibility *platform = platformAccessibility(); platform && !platform->isActive())
                platform->setActive(true);
            previousHandler() = QAccessible::installUpdateHandler(&AccessibleEventTap::handle);
        }
#endif
        monitors().append(monitor);
    }

    static void remove(AccessibleMonitor *monitor)
    {
        monitors().removeOne(monitor);
#if defined(KORVUUI_HAS_PRIVATE_GUI)
        if (monitors().isEmpty())
            QAccessible::installUpdateHandler(previousHandler());
#endif
    }

private:
    static QList<AccessibleMonitor *> &monitors()
    {
        static QList<AccessibleMonitor *> list;
        return list;
    }

#if defined(KORVUUI_HAS_PRIVATE_GUI)
    static QAccessible::UpdateHandler &previousHandler()
    {
        static QAccessible::UpdateHandler handler = nullptr;
        return handler;
    }

    static QPlatformAccessibility *platformAccessibility()
    {
        QPlatformIntegration *integration = QGuiApplicationPrivate::platformIntegration();
        return integration ? integration->accessibility() : nullptr;
    }

    static void handle(QAccessibleEvent *event)
    {
        const QList<AccessibleMonitor *> receivers = monitors();
        for (AccessibleMonitor *monitor : receivers)
            monitor->handleEvent(event);
        // An installed handler is given the events instead of the platform.
        if (previousHandler())
            previousHandler()(event);
        else if (QPlatformAccessibility *platform = platformAccessibility())
            platform->notifyAccessibilityUpdate(event);
    }
#endif
};

AccessibleMonitor::AccessibleMonitor(QObject *parent)
    : QAbstractListModel(parent)
{
    // One that is not made by QML is complete from the start.
    start();
}

AccessibleMonitor::~AccessibleMonitor()
{
    stop();
}

bool AccessibleMonitor::isAvailable()
{
#if defined(KORVUUI_HAS_PRIVATE_GUI)
    return true;
#else
    return false;
#endif
}

void AccessibleMonitor::setWatching(bool watching)
{
    if (m_watching == watching)
        return;
    m_watching = watching;
    if (m_complete)
        watching ? start() : stop();
    Q_EMIT watchingChanged();
}

void AccessibleMonitor::classBegin()
{
    m_complete = false;
    stop();
}

void AccessibleMonitor::componentComplete()
{
    m_complete = true;
    if (m_watching)
        start();
}

void AccessibleMonitor::start()
{
    if (m_started)
        return;
    m_started = true;
    AccessibleEventTap::add(this);
    m_announcements =
        connect(Announcer::instance(), &Announcer::announced, this, &AccessibleMonitor::handleAnnouncement);
    QObject *focusObject = QGuiApplication::focusObject();
    setFocus(focusObject, infoOf(QAccessible::queryAccessibleInterface(focusObject)));
}

void AccessibleMonitor::stop()
{
    if (!m_started)
        return;
    m_started = false;
    AccessibleEventTap::remove(this);
    disconnect(m_announcements);
}

AccessibleMonitor::ItemInfo AccessibleMonitor::infoOf(QAccessibleInterface *interface)
{
    if (!interface || !interface->isValid())
        return {};
    ItemInfo info;
    info.role = enumText(QMetaEnum::fromType<QAccessible::Role>(), interface->role());
    info.name = interface->text(QAccessible::Name);
    info.description = interface->text(QAccessible::Description);
    if (QAccessibleValueInterface *value = interface->valueInterface())
        info.value = value->currentValue().toString();
    const QAccessible::State state = interface->state();
    for (const StateName &row : stateNames) {
        if (row.isSet(state))
            info.states.append(row.name);
    }
    return info;
}

QString AccessibleMonitor::label(const ItemInfo &info)
{
    return info.name.isEmpty() ? info.role : u"%1 \"%2\""_s.arg(info.role, info.name);
}

void AccessibleMonitor::handleEvent(QAccessibleEvent *event)
{
    const auto found = std::find_if(std::begin(eventKinds), std::end(eventKinds),
                                    [&](const EventKind &row) { return row.event == event->type(); });
    if (found == std::end(eventKinds))
        return;
    const ItemInfo info = infoOf(event->accessibleInterface());
    if (info.role.isEmpty())
        return;
    QString text;
    switch (found->kind) {
    case Kind::Focus:
    case Kind::State:
        text = info.states.join(", "_L1);
        break;
    case Kind::Name:
        text = info.name;
        break;
    case Kind::Description:
        text = info.description;
        break;
    case Kind::Value:
        text = info.value;
        break;
    case Kind::Announcement:
        break;
    }
    if (found->kind == Kind::Focus || event->object() == m_focusObject)
        setFocus(event->object(), info);
    append({found->kind, label(info), text});
}

void AccessibleMonitor::handleAnnouncement(const QString &text, QObject *object)
{
    append({Kind::Announcement, label(infoOf(object ? QAccessible::queryAccessibleInterface(object) : nullptr)), text});
}

void AccessibleMonitor::setFocus(QObject *object, const ItemInfo &info)
{
    m_focusObject = object;
    if (m_focus == info)
        return;
    m_focus = info;
    Q_EMIT focusChanged();
}

void AccessibleMonitor::append(Row row)
{
    if (m_rows.size() == maximumRows) {
        beginRemoveRows({}, 0, 0);
        m_rows.removeFirst();
        endRemoveRows();
    }
    beginInsertRows({}, count(), count());
    m_rows.append(std::move(row));
    endInsertRows();
    Q_EMIT countChanged();
}

void AccessibleMonitor::clear()
{
    if (m_rows.isEmpty())
        return;
    beginResetModel();
    m_rows.clear();
    endResetModel();
    Q_EMIT countChanged();
}

int AccessibleMonitor::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant AccessibleMonitor::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case KindRole:
        return enumText(QMetaEnum::fromType<Kind>(), int(row.kind));
    case ItemRole:
        return row.item;
    case TextRole:
    case Qt::DisplayRole:
        return row.text;
    default:
        return {};
    }
}

QHash<int, QByteArray> AccessibleMonitor::roleNames() const
{
    return {{KindRole, "kind"}, {ItemRole, "item"}, {TextRole, "text"}};
}
