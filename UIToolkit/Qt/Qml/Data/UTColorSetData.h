#pragma once

#include "ColorGroup.h"

/*!
 * The colours of one item, as an attached object: background, border, text and icon.
 *
 * The right icon's colour exists only where a subclass makes it; its reader must expect null.
 */
class UTColorSetData : public ColorGroup
{
    Q_OBJECT

public:
    explicit UTColorSetData(QObject *parent = nullptr)
        : ColorGroup(parent, {Background, Border, Text, Icon})
    {
    }

    static UTColorSetData *qmlAttachedProperties(QObject *attachee) { return new UTColorSetData(attachee); }
};

QML_DECLARE_TYPEINFO(UTColorSetData, QML_HAS_ATTACHED_PROPERTIES)
