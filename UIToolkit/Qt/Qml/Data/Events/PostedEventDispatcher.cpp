#include "PostedEventDispatcher.h"

#include <QMetaObject>
#include <QMetaType>

#include <utility>

namespace EventManagment {

PostedEventDispatcher::PostedEventDispatcher()
{
    // The queued call finds its arguments' types by these names.
    qRegisterMetaType<QPointer<QObject>>("QPointer<QObject>");
    qRegisterMetaType<std::function<void()>>("std::function<void()>");
}

PostedEventDispatcher *PostedEventDispatcher::instance()
{
    // Not an object of static storage: work may be posted while those are destroyed.
    static PostedEventDispatcher *const dispatcher = new PostedEventDispatcher;
    return dispatcher;
}

void PostedEventDispatcher::postedSlot(QPointer<QObject> target, std::function<void()> fn)
{
    if (target && fn)
        fn();
}

void post(QObject *target, std::function<void()> fn)
{
    QMetaObject::invokeMethod(PostedEventDispatcher::instance(), "postedSlot", Qt::QueuedConnection,
                              Q_ARG(QPointer<QObject>, QPointer<QObject>(target)),
                              Q_ARG(std::function<void()>, std::move(fn)));
}

} // namespace EventManagment
