#include "AwaitedData.h"

#include <QtQml/QQmlInfo>

AwaitedData *AwaitedData::qmlAttachedProperties(QObject *attachee)
{
    qmlWarning(attachee) << "this attached data type is registered but not available yet";
    return new AwaitedData(attachee);
}

void AwaitedData::registerCreatable(const char *uri, const char *name)
{
    qmlRegisterTypeNotAvailable(uri, 1, 0, name, QLatin1StringView(name) + QStringLiteral(" is not available yet."));
}
