#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/*!
 * Stands in for the native data classes that are registered but not written yet.
 *
 * It keeps the module's list of names whole; using one reports what is missing. Remove this class
 * with the last name that needs it.
 */
class AwaitedData : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    static AwaitedData *qmlAttachedProperties(QObject *attachee);
};

QML_DECLARE_TYPEINFO(AwaitedData, QML_HAS_ATTACHED_PROPERTIES)
