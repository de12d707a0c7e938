#pragma once

#include "PillButtonData.h"

/*! What a UTPillButton looks like, from its style, size and state. */
class UTPillButtonData : public PillButtonData
{
    Q_OBJECT

public:
    explicit UTPillButtonData(QObject *attachee = nullptr)
        : PillButtonData(attachee, "UTPillButton")
    {
    }

    static UTPillButtonData *qmlAttachedProperties(QObject *attachee) { return new UTPillButtonData(attachee); }
};

QML_DECLARE_TYPEINFO(UTPillButtonData, QML_HAS_ATTACHED_PROPERTIES)
