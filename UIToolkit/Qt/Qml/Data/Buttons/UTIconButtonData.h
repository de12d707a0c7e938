#pragma once

#include "BoxData.h"
#include "UTButtonType.h"
#include "UTIconData.h"

/*! What a UTIconButton looks like, from its type and state. The icon has the colour of the text. */
class UTIconButtonData : public BoxData
{
    Q_OBJECT
    //! What the button is for, None by default. None and unknown numbers change nothing.
    Q_PROPERTY(UTButtonType::Type type READ type WRITE setType NOTIFY typeChanged FINAL)
    //! The icon for the present state.
    Q_PROPERTY(UTIconData *iconData READ iconData CONSTANT FINAL)
    //! Size of the button in pixels.
    Q_PROPERTY(QSize buttonSize READ buttonSize CONSTANT FINAL)

public:
    explicit UTIconButtonData(QObject *attachee = nullptr);

    static UTIconButtonData *qmlAttachedProperties(QObject *attachee) { return new UTIconButtonData(attachee); }

    UTButtonType::Type type() const { return m_type; }
    UTIconData *iconData() const { return m_iconData; }
    QSize buttonSize() const { return QSize(24, 24); }

    void setType(UTButtonType::Type type) { set(m_type, type, &UTIconButtonData::typeChanged); }

public Q_SLOTS:
    //! Recomputes all outputs.
    void refresh();

Q_SIGNALS:
    void typeChanged();
    //! The inputs changed, the outputs are out of date.
    void buttonDataChanged();

private:
    UTIconData *m_iconData;
    UTButtonType::Type m_type = UTButtonType::None;
};

QML_DECLARE_TYPEINFO(UTIconButtonData, QML_HAS_ATTACHED_PROPERTIES)
