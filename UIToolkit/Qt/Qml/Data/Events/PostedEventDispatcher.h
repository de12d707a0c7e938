#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

// The spelling of the namespace is part of the class's name in the meta-object system.
namespace EventManagment {

/*! Runs posted work from the event loop of the thread that posted first. There is one, and it is never destroyed. */
class PostedEventDispatcher : public QObject
{
    Q_OBJECT

public:
    static PostedEventDispatcher *instance();

private:
    PostedEventDispatcher();

private Q_SLOTS:
    void postedSlot(QPointer<QObject> target, std::function<void()> fn);
};

/*!
 * Runs \a fn later, never within this call, if \a target still exists then. Work runs in the order
 * of posting. Null and empty arguments do nothing. May be called from any thread; \a fn runs in the
 * dispatcher's.
 */
void post(QObject *target, std::function<void()> fn);

} // namespace EventManagment
