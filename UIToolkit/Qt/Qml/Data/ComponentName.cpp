#include "ComponentName.h"

#include <QDebug>
#include <QObject>

QByteArrayView ComponentName::of(const QObject *attachee)
{
    if (!attachee)
        return {};
    // The class of a QML component is its type name, "_" and a generated suffix.
    const QByteArrayView className(attachee->metaObject()->className());
    const auto end = className.indexOf('_');
    return end < 0 ? className : className.first(end);
}

bool ComponentName::check(const QObject *attachee, const char *component)
{
    if (of(attachee) == component)
        return true;
    // The apostrophe belongs to the text that applications know.
    qWarning("This property can't be used outside it's supported component (%s).", component);
    return false;
}
