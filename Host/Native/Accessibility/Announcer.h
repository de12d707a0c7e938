#pragma once

#include <QObject>
#include <QString>

#include "korvuui_export.h"

class QQuickItem;

//! Lets screen readers speak texts that no item shows.
class KORVUUI_EXPORT Announcer : public QObject
{
    Q_OBJECT

public:
    static Announcer *instance();

    //! Speaks \a text, blanks around it removed, on behalf of \a object: an item, or null for the window with the focus.
    //! Nothing happens when no text is left. A reader that knows announcements is sent one; for readers from before
    //! there were any, a notification shows for a moment instead, invisible to the eye. Never both.
    void announce(QObject *object, const QString &text);

Q_SIGNALS:
    //! Sent for every text, also when no screen reader is there to speak it.
    void announced(const QString &text, QObject *object);

private:
    template<typename T>
    friend T *applicationObject();
    using QObject::QObject;

    void sendAnnouncement(QObject *accessibleObject, const QString &text);
    void showNotificationIfNeeded(QObject *object, const QString &text);
    void showNotification(QObject *object, const QString &text);
};
