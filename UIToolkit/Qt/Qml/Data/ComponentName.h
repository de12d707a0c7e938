#pragma once

#include <QByteArrayView>

class QObject;

/*! Which component an attached data object is attached to. */
namespace ComponentName {

/*!
 * The type name of \a attachee as QML code writes it: its class name up to the first "_".
 * Empty for null.
 */
QByteArrayView of(const QObject *attachee);

/*!
 * Whether \a attachee is a \a component, by that exact name.
 * If not, logs the warning that data objects give in the wrong place.
 */
bool check(const QObject *attachee, const char *component);

} // namespace ComponentName
