#pragma once

#include <QCoreApplication>
#include <QPointer>

//! The one T of this application: made on first use, gone with the application object, and made anew for the next one.
//! T befriends this function and has a constructor that takes the parent.
template<typename T>
T *applicationObject()
{
    static QPointer<T> object;
    if (!object) {
        Q_ASSERT_X(qApp, T::staticMetaObject.className(), "used without an application object");
        object = new T(qApp);
    }
    return object;
}
