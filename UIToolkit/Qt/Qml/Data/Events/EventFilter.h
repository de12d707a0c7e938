#pragma once

#include <QEvent>
#include <QList>
#include <QObject>

#include <functional>
#include <memory>

/*! Native helpers behind what is seen. */
namespace VisualUtils {

/*!
 * Runs a function for chosen events of the object that it belongs to.
 *
 * Made by the functions below. It lives until the watched object dies or, when it is for one event
 * only, until that event.
 */
class EventFilter : public QObject
{
    Q_OBJECT

public:
    //! Gets the event before the watched object does; true keeps the event from it.
    using Handler = std::function<bool(QEvent *event)>;

    ~EventFilter() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    EventFilter(QObject *watched, QList<int> types, Handler handler, bool once);
    friend EventFilter *installEventFilter(QObject *, const QList<int> &, Handler, bool);

    const QList<int> m_types;
    // Shared with a call that is running, which may destroy the filter.
    const std::shared_ptr<const Handler> m_handler;
    const bool m_once;
};

/*!
 * Lets \a handler see the events of \a watched whose type is among \a types, or all events when
 * that is empty; with \a once only the first of them. Returns the filter, which \a watched owns;
 * null, and nothing is installed, without an object to watch or a function to call.
 */
EventFilter *installEventFilter(QObject *watched, const QList<int> &types, EventFilter::Handler handler,
                                bool once = false);

//! The same for events of one \a type.
EventFilter *installEventFilter(QObject *watched, QEvent::Type type, EventFilter::Handler handler, bool once = false);

} // namespace VisualUtils
