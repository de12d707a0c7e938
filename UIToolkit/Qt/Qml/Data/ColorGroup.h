#pragma once

#include "KObject.h"
#include "UTColorData.h"

#include <initializer_list>

/*!
 * The colours of one item under one theme type and one state source; the base of all data objects
 * that have such a group.
 *
 * Which of the five colours exist is up to the subclass. Reading one that does not exist gives null
 * and logs a warning, so readers of optional colours must know what they do.
 */
class ColorGroup : public KObject
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
    QString themeType() const { return m_themeType; }
    UTEventData *eventData() const { return m_eventData; }
    UTColorData *backgroundColorData() const { return colorData(Background); }
    UTColorData *borderColorData() const { return colorData(Border); }
    UTColorData *textColorData() const { return colorData(Text); }
    UTColorData *iconColorData() const { return colorData(Icon); }
    UTColorData *rightIconColorData() const { return colorData(RightIcon); }

    virtual void setThemeType(const QString &themeType);
    void setEventData(UTEventData *eventData);

Q_SIGNALS:
    //! Part of the interface; setThemeType() does not emit it, and that is on purpose. IUTButtonData does.
    void onThemeTypeChanged();
    void eventDataChanged();

protected:
    enum Slot { Background, Border, Text, Icon, RightIcon, SlotCount };

    //! A group of the colours \a existing, owned by the group.
    ColorGroup(QObject *parent, std::initializer_list<Slot> existing);

    //! The colour, or null after a warning.
    UTColorData *colorData(Slot slot) const;

    //! Gives \a token to the colour by \a setter, if there is that colour.
    void setToken(Slot slot, void (UTColorData::*setter)(const QString &), const QString &token);

    //! Whether high contrast was on when first asked. A change of the setting reaches the objects made after it.
    bool isHighContrast();

private:
    void passOnEventData();
    void updateColors();

    QString m_themeType;
    QPointer<UTEventData> m_eventData;
    UTColorData *m_colors[SlotCount] = {};
    bool m_highContrast = false;
    bool m_highContrastAsked = false;
};
