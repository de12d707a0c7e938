#pragma once

#include <QAbstractItemModel>
#include <QJSValue>
#include <QList>
#include <QPointer>
#include <QVariant>

#include <variant>

/*!
 * The rows of whatever a list view takes as its model: item models, arrays and lists, a number, or
 * one object. It only reads, and believes nothing: a row or a role that is not there has no value.
 */
class ListRows
{
public:
    //! A role by its name and, in an item model, its number; -1 where the model has no such role.
    struct Role
    {
        QString name;
        int number = -1;
        bool operator==(const Role &other) const = default;
    };

    ListRows() = default;
    explicit ListRows(const QVariant &model);

    //! The model whose signals tell of changes, or null.
    QAbstractItemModel *itemModel() const;
    //! The object whose countChanged() tells of changes, or null.
    QObject *objectModel() const { return m_objectModel; }
    //! Rows of a number have no values, so that they need not be looked at one by one.
    bool haveValues() const { return !std::holds_alternative<int>(m_rows); }

    int count() const;
    Role role(const QString &name) const;
    QVariant value(int row, const Role &role) const;
    //! The property \a name of the object in \a row; nothing where the rows are not a list of objects.
    QVariant objectProperty(int row, const QString &name) const;

private:
    // The objects of a list may go while the list keeps their places.
    struct Entry
    {
        QVariant value;
        QPointer<QObject> object;
    };
    using Entries = QList<Entry>;
    using ItemModel = QPointer<QAbstractItemModel>;

    static Entry makeEntry(const QVariant &value);
    void takeObject(QObject *object);
    void takeScript(const QJSValue &value);

    std::variant<int, ItemModel, QJSValue, Entries> m_rows = 0;
    QPointer<QObject> m_objectModel;
};
