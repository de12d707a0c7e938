#pragma once

#include "KObject.h"

#include <QtQml/qqml.h>

/*!
 * Lets characters that are typed with Ctrl+Alt (AltGr on many keyboards) reach the text input that
 * it is attached to, even where an application shortcut has the same keys.
 */
class UTShortcutOverride : public KObject
{
    Q_OBJECT

public:
    explicit UTShortcutOverride(QObject *attachee = nullptr);

    static UTShortcutOverride *qmlAttachedProperties(QObject *attachee);
};

QML_DECLARE_TYPEINFO(UTShortcutOverride, QML_HAS_ATTACHED_PROPERTIES)
