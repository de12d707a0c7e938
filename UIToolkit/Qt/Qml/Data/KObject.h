#pragma once

#include <QObject>

/*! The plain base of the module's native data classes. */
class KObject : public QObject
{
    Q_OBJECT

public:
    explicit KObject(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

protected:
    //! Stores \a value in \a member and emits \a changed, if it differs.
    template<typename Class, typename T>
    void set(T &member, const T &value, void (Class::*changed)())
    {
        if (member == value)
            return;
        member = value;
        Q_EMIT(static_cast<Class *>(this)->*changed)();
    }
};
