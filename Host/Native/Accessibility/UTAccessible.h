#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqml.h>

#include "korvuui_export.h"

//! The texts that the user of a component gives its parts for screen readers. Each is empty until it is set.
class KORVUUI_EXPORT UTAccessibleInfo : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged FINAL)
    Q_PROPERTY(QString description MEMBER m_description NOTIFY descriptionChanged FINAL)
    Q_PROPERTY(QString popupName MEMBER m_popupName NOTIFY popupNameChanged FINAL)
    Q_PROPERTY(QString leftItemName MEMBER m_leftItemName NOTIFY leftItemNameChanged FINAL)
    Q_PROPERTY(QString leftItemDescription MEMBER m_leftItemDescription NOTIFY leftItemDescriptionChanged FINAL)
    Q_PROPERTY(QString middleItemName MEMBER m_middleItemName NOTIFY middleItemNameChanged FINAL)
    Q_PROPERTY(QString middleItemDescription MEMBER m_middleItemDescription NOTIFY middleItemDescriptionChanged FINAL)
    Q_PROPERTY(QString rightItemName MEMBER m_rightItemName NOTIFY rightItemNameChanged FINAL)
    Q_PROPERTY(QString rightItemDescription MEMBER m_rightItemDescription NOTIFY rightItemDescriptionChanged FINAL)

public:
    using QObject::QObject;

Q_SIGNALS:
    void nameChanged();
    void descriptionChanged();
    void popupNameChanged();
    void leftItemNameChanged();
    void leftItemDescriptionChanged();
    void middleItemNameChanged();
    void middleItemDescriptionChanged();
    void rightItemNameChanged();
    void rightItemDescriptionChanged();

private:
    QString m_name;
    QString m_description;
    QString m_popupName;
    QString m_leftItemName;
    QString m_leftItemDescription;
    QString m_middleItemName;
    QString m_middleItemDescription;
    QString m_rightItemName;
    QString m_rightItemDescription;
};

//! Attached to a component: what its user wants screen readers to hear in place of the component's own texts, as
//! "UTAccessible.info.description: ...". Which texts a component heeds it says itself.
class KORVUUI_EXPORT UTAccessible : public QObject
{
    Q_OBJECT
    Q_PROPERTY(UTAccessibleInfo *info READ info CONSTANT FINAL)
    //! The texts that the component heeds, by their names; the component sets it. Empty for one that says nothing.
    Q_PROPERTY(QStringList supportedKeys MEMBER m_supportedKeys NOTIFY supportedKeysChanged FINAL)

public:
    explicit UTAccessible(QObject *attachee = nullptr);

    static UTAccessible *qmlAttachedProperties(QObject *attachee) { return new UTAccessible(attachee); }

    UTAccessibleInfo *info() { return &m_info; }

Q_SIGNALS:
    void supportedKeysChanged();

private:
    UTAccessibleInfo m_info;
    QStringList m_supportedKeys;
};

QML_DECLARE_TYPEINFO(UTAccessible, QML_HAS_ATTACHED_PROPERTIES)
