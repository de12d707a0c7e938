#pragma once

#include "KObject.h"
#include "UTEventData.h"

#include <KColorSet.h>

#include <QColor>
#include <QPointer>
#include <QtQml/qqml.h>

/*!
 * One themed colour of one item: names a colour set and computes the colour for the item's state.
 *
 * Colour sets are fetched from the host when a token, the theme type or the application theme
 * changes; a state change only picks among the colours already held.
 */
class UTColorData : public KObject
{
    Q_OBJECT
    //! Name of the colour set for the ordinary case; empty (the default) paints nothing.
    Q_PROPERTY(QString token READ token WRITE setToken NOTIFY tokenChanged FINAL)
    //! Name of the colour set used while the item is checked; empty (the default) for none.
    Q_PROPERTY(QString activeToken READ activeToken WRITE setActiveToken NOTIFY activeTokenChanged FINAL)
    //! The resulting colour; "transparent" while there is no valid set or no state source.
    Q_PROPERTY(QColor color READ color NOTIFY colorChanged FINAL)
    //! When true, color is left as the owner set it; default false.
    Q_PROPERTY(bool colorCustomized READ colorCustomized WRITE setColorCustomized NOTIFY colorCustomizedChanged FINAL)
    //! The state source; null by default.
    Q_PROPERTY(UTEventData *eventData READ eventData WRITE setEventData NOTIFY eventDataChanged FINAL)

public:
    explicit UTColorData(QObject *parent = nullptr);

    static UTColorData *qmlAttachedProperties(QObject *attachee);

    QString token() const { return m_token; }
    QString activeToken() const { return m_activeToken; }
    QColor color() const { return m_color; }
    bool colorCustomized() const { return m_colorCustomized; }
    UTEventData *eventData() const { return m_eventData; }

    void setToken(const QString &token);
    void setActiveToken(const QString &activeToken);
    void setColor(const QColor &color);
    void setColorCustomized(bool colorCustomized);
    //! Who has the colour recomputed when the state changes: the object itself, or an owner of several.
    enum Following { Follows, OwnerFollows };
    //! Takes \a eventData as its state source. The colour is recomputed with the next change, not at once.
    void setEventData(UTEventData *eventData, Following following = Follows);
    //! Passed to every look-up; the host knows the spellings. Empty by default.
    void setThemeType(const QString &themeType);

public Q_SLOTS:
    //! Picks the colour for the present state from the sets already held.
    void onEventDataChanged();
    //! Fetches the sets anew, then picks the colour.
    void onColorDataChanged();

Q_SIGNALS:
    void tokenChanged();
    void activeTokenChanged();
    void colorChanged();
    void colorCustomizedChanged();
    void eventDataChanged();

private:
    QColor stateColor() const;
    void followTheme();

    QString m_token;
    QString m_activeToken;
    QString m_themeType;
    KColorSet m_colorSet;
    KColorSet m_activeColorSet;
    QColor m_color;
    QPointer<UTEventData> m_eventData;
    bool m_colorCustomized = false;
    bool m_followsTheme = false;
};

QML_DECLARE_TYPEINFO(UTColorData, QML_HAS_ATTACHED_PROPERTIES)
