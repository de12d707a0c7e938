#include "EventFilter.h"

#include <QPointer>

#include <utility>

namespace VisualUtils {

EventFilter::EventFilter(QObject *watched, QList<int> types, Handler handler, bool once)
    : QObject(watched)
    , m_types(std::move(types))
    , m_handler(std::make_shared<const Handler>(std::move(handler)))
    , m_once(once)
{
    watched->installEventFilter(this);
}

EventFilter::~EventFilter()
{
    if (parent())
        parent()->removeEventFilter(this);
}

bool EventFilter::eventFilter(QObject *watched, QEvent *event)
{
    const bool isChosen = m_types.isEmpty() || m_types.contains(int(event->type()));
    if (!isChosen || watched != parent())
        return QObject::eventFilter(watched, event);

    // Before the call, so that an event which the handler itself causes does not count as a second one.
    if (m_once) {
        watched->removeEventFilter(this);
        deleteLater();
    }
    const std::shared_ptr<const Handler> handler = m_handler;
    const QPointer<QObject> guard(watched);
    const bool isFiltered = (*handler)(event);
    // Nobody is left to get the event if the handler destroyed its receiver.
    return isFiltered || !guard;
}

EventFilter *installEventFilter(QObject *watched, const QList<int> &types, EventFilter::Handler handler, bool once)
{
    return watched && handler ? new EventFilter(watched, types, std::move(handler), once) : nullptr;
}

EventFilter *installEventFilter(QObject *watched, QEvent::Type type, EventFilter::Handler handler, bool once)
{
    return installEventFilter(watched, QList<int>{int(type)}, std::move(handler), once);
}

} // namespace VisualUtils
