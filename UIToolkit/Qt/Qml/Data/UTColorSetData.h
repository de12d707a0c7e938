#pragma once

#include "KObject.h"
#include "UTColorData.h"

/*!
 * The colours of one item, as an attached object: background, border, text, icon and right icon.
 *
 * The right icon's colour exists only where a subclass makes it; its reader must expect null.
 */
class UTColorSetData : public KObject
{
    Q_OBJECT
    //! Theme type of all colours in the group, for example "global" or "dark". Empty by default.
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY onThemeTypeChanged FINAL)
    Q_PROPERTY(UTColorData *backgroundColorData READ backgroundColorData CONSTANT FINAL)
    Q_PROPERTY(UTColorData *borderColorData READ borderColorData CONSTANT FINAL)
    Q_PROPERTY(UTColorData *textColorData READ textColorData CONSTANT FINAL)
    Q_PROPERTY(UTColorData *iconColorData READ iconColorData CONSTANT FINAL)
    Q_PROPERTY(UTColorData *rightIconColorData READ rightIconColorData CONSTANT FINAL)
    //! State source shared by all colours of the group; null by default.
    Q_PROPERTY(UTEventData *eventData READ eventData WRITE setEventData NOTIFY eventDataChanged FINAL)

public:
    explicit UTColorSetData(QObject *parent = nullptr);

    static UTColorSetData *qmlAttachedProperties(QObject *attachee);

    QString themeType() const { return m_themeType; }
    UTEventData *eventData() const { return m_eventData; }
    // Each logs a warning and returns null when its object was not created.
    UTColorData *backgroundColorData() const;
    UTColorData *borderColorData() const;
    UTColorData *textColorData() const;
    UTColorData *iconColorData() const;
    UTColorData *rightIconColorData() const;

    void setThemeType(const QString &themeType);
    void setEventData(UTEventData *eventData);

Q_SIGNALS:
    //! Part of the interface; setThemeType() does not emit it, and that is on purpose.
    void onThemeTypeChanged();
    void eventDataChanged();

private:
    void passOnEventData();

    enum Slot { Background, Border, Text, Icon, RightIcon, SlotCount };
    UTColorData *colorData(Slot slot) const;

    QString m_themeType;
    QPointer<UTEventData> m_eventData;
    UTColorData *m_colors[SlotCount] = {};
};

QML_DECLARE_TYPEINFO(UTColorSetData, QML_HAS_ATTACHED_PROPERTIES)
