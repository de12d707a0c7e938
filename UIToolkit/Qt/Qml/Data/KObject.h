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
};
