#pragma once

#include "NativeTest.h"

#include <App.h>
#include <ThemeManager.h>

#include <private/qmetaobjectbuilder_p.h>

//! A \a Data object on a stand-in for the component that it belongs to: data objects look at the name of its class only.
template<typename Data>
class Attached
{
public:
    Data *operator->() { return &m_data; }
    Data &operator*() { return m_data; }

private:
    class Component : public QObject
    {
    public:
        Component()
        {
            QMetaObjectBuilder builder;
            builder.setClassName(QByteArray(Data::staticMetaObject.className()).chopped(qstrlen("Data")));
            builder.setSuperClass(&QObject::staticMetaObject);
            m_metaObject.reset(builder.toMetaObject());
        }
        const QMetaObject *metaObject() const override { return m_metaObject.get(); }

    private:
        QScopedPointer<QMetaObject, QScopedPointerPodDeleter> m_metaObject;
    };

    Component m_component;
    Data m_data{&m_component};
};

//! A test of the native data of components, which leaves theme and text scale as it found them.
class DataTest : public NativeTest
{
    Q_OBJECT

protected:
    //! The values of the properties \a names, which a blank separates.
    static QVariantList values(const QObject &object, const QByteArray &names)
    {
        QVariantList list;
        for (const QByteArray &name : names.split(' '))
            list << object.property(name);
        return list;
    }

protected Q_SLOTS:
    void cleanup()
    {
        ThemeManager::instance()->setTheme(QStringLiteral("light"));
        App::instance()->setTextScale(1);
    }
};
