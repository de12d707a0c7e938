#pragma once

#include "KObject.h"
#include "UTEventData.h"

#include <QPointer>

/*! The name of an icon that changes with the state of its item. Owned by the data object of a button. */
class UTIconData : public KObject
{
    Q_OBJECT
    //! Name of the icon for the present state; empty without a state source.
    Q_PROPERTY(QString icon READ icon NOTIFY iconChanged FINAL)
    //! The state source; null by default.
    Q_PROPERTY(UTEventData *eventData READ eventData WRITE setEventData NOTIFY eventDataChanged FINAL)

public:
    //! One name for each state. The texts are not copied: they come from tables that stay.
    struct Names
    {
        QLatin1StringView normal;
        QLatin1StringView hovered;
        QLatin1StringView pressed;
        QLatin1StringView checked;
        QLatin1StringView disabled;
    };

    explicit UTIconData(QObject *parent = nullptr)
        : KObject(parent)
    {
    }

    QString icon() const { return m_icon; }
    UTEventData *eventData() const { return m_eventData; }

    //! Takes the names and at once the one for the present state.
    void setNames(const Names &names);
    //! Takes \a eventData as its state source, and at once the name for that state.
    void setEventData(UTEventData *eventData);

public Q_SLOTS:
    //! Picks the name for the present state.
    void onEventDataChanged();

Q_SIGNALS:
    void iconChanged();
    void eventDataChanged();

private:
    QLatin1StringView nameOfState() const;

    Names m_names;
    QString m_icon;
    QPointer<UTEventData> m_eventData;
};
