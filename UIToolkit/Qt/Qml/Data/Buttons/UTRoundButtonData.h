#pragma once

#include "IUTButtonData.h"

/*! What a UTRoundButton looks like, from its style, size and state. */
class UTRoundButtonData : public IUTButtonData
{
    Q_OBJECT
    //! Width in pixels, always that of the height.
    Q_PROPERTY(int width READ width WRITE setWidth NOTIFY widthChanged FINAL)

public:
    explicit UTRoundButtonData(QObject *attachee = nullptr)
        : IUTButtonData(attachee, "UTRoundButton")
    {
    }

    static UTRoundButtonData *qmlAttachedProperties(QObject *attachee) { return new UTRoundButtonData(attachee); }

    int width() const { return m_width; }
    void setWidth(int width) { set(m_width, width, &UTRoundButtonData::widthChanged); }

Q_SIGNALS:
    void widthChanged();

protected:
    void updateSize() override;

private:
    int m_width = 0;
};

QML_DECLARE_TYPEINFO(UTRoundButtonData, QML_HAS_ATTACHED_PROPERTIES)
