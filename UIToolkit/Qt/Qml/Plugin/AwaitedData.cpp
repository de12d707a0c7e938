#include "AwaitedData.h"

#include <QtQml/QQmlInfo>

AwaitedData *AwaitedData::qmlAttachedProperties(QObject *attachee)
{
    qmlWarning(attachee) << "this attached data type is registered but not available yet";
    return new AwaitedData(attachee);
}
