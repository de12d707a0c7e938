#include "Announcer.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include "ApplicationObject.h"

#if defined(KORVUUI_HAS_DBUS)
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#endif

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

//! Long enough for a reader to fetch the name, short enough not to be met while browsing the window.
constexpr std::chrono::seconds notificationLifetime{2};

#if defined(KORVUUI_HAS_DBUS)
//! The connection of Qt's own accessibility bridge; absent while no assistive technology runs.
QDBusConnection accessibilityBus()
{
    return QDBusConnection(u"a11y"_s);
}
#endif

//! The nearest object at or above \a object that assistive technology knows: its accessible items are all it is told of.
QObject *accessibleAncestor(QObject *object)
{
    for (QObject *candidate = object; candidate;) {
        if (QAccessible::queryAccessibleInterface(candidate))
            return candidate;
        auto *item = qobject_cast<QQuickItem *>(candidate);
        if (!item)
            candidate = candidate->parent();
        else if (item->parentItem())
            candidate = item->parentItem();
        else
            candidate = item->window();
    }
    return QGuiApplication::focusWindow();
}

QQuickWindow *windowOf(QObject *object)
{
    if (auto *item = qobject_cast<QQuickItem *>(object))
        return item->window();
    if (auto *window = qobject_cast<QQuickWindow *>(object))
        return window;
    return qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow());
}

} // namespace

Announcer *Announcer::instance()
{
    return applicationObject<Announcer>();
}

void Announcer::announce(QObject *object, const QString &text)
{
    const QString spoken = text.trimmed();
    if (spoken.isEmpty())
        return;
    Q_EMIT announced(spoken, object);
    if (!QAccessible::isActive())
        return;
    if (QObject *target = accessibleAncestor(object))
        sendAnnouncement(target, spoken);
    showNotificationIfNeeded(object, spoken);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void Announcer::sendAnnouncement(QObject *accessibleObject, const QString &text)
{
    QAccessibleAnnouncementEvent event(accessibleObject, text);
    QAccessible::updateAccessibility(&event);
}

#elif defined(KORVUUI_HAS_DBUS)

// This Qt has no such event, but its bridge's connection can carry the signal.
void Announcer::sendAnnouncement(QObject *accessibleObject, const QString &text)
{
    constexpr int polite = 1;
    QDBusConnection bus = accessibilityBus();
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(accessibleObject);
    if (!bus.isConnected() || !interface)
        return;
    const QString path = u"/org/a11y/atspi/accessible/"_s + QString::number(QAccessible::uniqueId(interface));
    QDBusMessage signal = QDBusMessage::createSignal(path, u"org.a11y.atspi.Event.Object"_s, u"Announcement"_s);
    signal << QString() << polite << 0 << QVariant::fromValue(QDBusVariant(text)) << QVariantMap();
    bus.send(signal);
}

#else

void Announcer::sendAnnouncement(QObject *, const QString &) {}

#endif

#if defined(KORVUUI_HAS_DBUS)

// The registry knows what the readers listen to. Asking costs one message for each announcement, and is always right
// about readers that come and go.
void Announcer::showNotificationIfNeeded(QObject *object, const QString &text)
{
    QDBusConnection bus = accessibilityBus();
    if (!bus.isConnected())
        return;
    const QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s,
                                       u"org.a11y.atspi.Registry"_s, u"GetRegisteredEvents"_s);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(
        watcher, &QDBusPendingCallWatcher::finished, this,
        [this, target = QPointer<QObject>(object), hadTarget = object != nullptr, text](QDBusPendingCallWatcher *call) {
            call->deleteLater();
            if (call->isError() || call->reply().arguments().isEmpty() || (hadTarget && !target))
                return;
            const auto events = call->reply().arguments().constFirst().value<QDBusArgument>();
            bool anyReader = false;
            events.beginArray();
            while (!events.atEnd()) {
                QString listener;
                QString event;
                events.beginStructure();
                events >> listener >> event;
                events.endStructure();
                anyReader = true;
                if (event.startsWith("object:announcement"_L1, Qt::CaseInsensitive))
                    return;
            }
            events.endArray();
            if (anyReader)
                showNotification(target, text);
        });
}

#else

void Announcer::showNotificationIfNeeded(QObject *, const QString &) {}

#endif

void Announcer::showNotification(QObject *object, const QString &text)
{
    QQuickWindow *window = windowOf(object);
    QQmlEngine *engine = object ? qmlEngine(object) : nullptr;
    if (!engine && window)
        engine = qmlEngine(window);
    if (!window || !engine)
        return;
    QQmlComponent component(engine, QUrl(u"qrc:/korvu/accessibility/SpokenNotification.qml"_s));
    auto *item = qobject_cast<QQuickItem *>(component.createWithInitialProperties({{u"spokenText"_s, text}}));
    if (!item)
        return;
    item->setParent(window->contentItem());
    item->setParentItem(window->contentItem());
    // The name has to be there before it shows.
    item->setVisible(true);
    QTimer::singleShot(notificationLifetime, item, &QObject::deleteLater);
}
