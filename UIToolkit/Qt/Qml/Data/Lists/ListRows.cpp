#include "ListRows.h"

#include <QMetaProperty>
#include <QQmlListReference>
#include <QSequentialIterable>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr auto ownValueRole = QLatin1StringView("modelData");

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

int toCount(double number)
{
    return std::isnan(number) ? 0 : int(std::clamp<double>(number, 0, std::numeric_limits<int>::max()));
}

bool isList(const QVariant &value)
{
    return value.typeId() != QMetaType::QString && value.typeId() != QMetaType::QByteArray
        && value.canConvert<QSequentialIterable>();
}

QObject *toObject(const QVariant &value)
{
    return value.metaType().flags().testFlag(QMetaType::PointerToQObject) ? value.value<QObject *>() : nullptr;
}

} // namespace

ListRows::ListRows(const QVariant &model)
{
    if (model.metaType() == QMetaType::fromType<QJSValue>()) {
        takeScript(model.value<QJSValue>());
    } else if (model.metaType() == QMetaType::fromType<QQmlListReference>()) {
        const auto list = model.value<QQmlListReference>();
        Entries entries;
        for (qsizetype i = 0; list.canAt() && list.canCount() && i < list.count(); ++i)
            entries << makeEntry(QVariant::fromValue(list.at(i)));
        m_rows = entries;
    } else if (model.metaType().flags().testFlag(QMetaType::PointerToQObject)) {
        takeObject(model.value<QObject *>());
    } else if (isNumber(model)) {
        m_rows = toCount(model.toDouble());
    } else if (isList(model)) {
        Entries entries;
        const auto list = model.value<QSequentialIterable>();
        for (const QVariant &value : list)
            entries << makeEntry(value);
        m_rows = entries;
    } else if (model.isValid() && !model.isNull()) {
        m_rows = Entries{makeEntry(model)};
    }
}

ListRows::Entry ListRows::makeEntry(const QVariant &value)
{
    QObject *object = toObject(value);
    // Without its pointer, which may dangle one day.
    return object ? Entry{{}, object} : Entry{value, {}};
}

void ListRows::takeObject(QObject *object)
{
    if (!object)
        return;
    if (auto *model = qobject_cast<QAbstractItemModel *>(object)) {
        m_rows = ItemModel(model);
    } else if (object->inherits("QQmlDelegateModel")) {
        *this = ListRows(object->property("model"));
    } else if (object->inherits("QQmlObjectModel")) {
        *this = ListRows(QVariant::fromValue(QQmlListReference(object, "children")));
        m_objectModel = object;
    } else {
        m_rows = Entries{makeEntry(QVariant::fromValue(object))};
    }
}

void ListRows::takeScript(const QJSValue &value)
{
    if (value.isQObject())
        takeObject(value.toQObject());
    else if (value.isArray())
        m_rows = value;
    else if (value.isObject())
        m_rows = Entries{makeEntry(QVariant::fromValue(value))};
    else if (value.isNumber() || value.isString() || value.isBool())
        *this = ListRows(value.toVariant());
}

QAbstractItemModel *ListRows::itemModel() const
{
    const auto *model = std::get_if<ItemModel>(&m_rows);
    return model ? model->data() : nullptr;
}

int ListRows::count() const
{
    if (const auto *number = std::get_if<int>(&m_rows))
        return *number;
    if (const auto *array = std::get_if<QJSValue>(&m_rows))
        return toCount(array->property(QStringLiteral("length")).toNumber());
    if (const auto *entries = std::get_if<Entries>(&m_rows))
        return int(entries->size());
    const QAbstractItemModel *model = itemModel();
    return model ? std::max(0, model->rowCount()) : 0;
}

ListRows::Role ListRows::role(const QString &name) const
{
    const QAbstractItemModel *model = itemModel();
    return {name, model ? model->roleNames().key(name.toUtf8(), -1) : -1};
}

QVariant ListRows::value(int row, const Role &role) const
{
    if (const QAbstractItemModel *model = itemModel()) {
        const QModelIndex index = role.number < 0 ? QModelIndex() : model->index(row, 0);
        return index.isValid() ? model->data(index, role.number) : QVariant();
    }
    QVariant value = objectProperty(row, role.name);
    if (value.isValid() || role.name != ownValueRole)
        return value;
    if (const auto *array = std::get_if<QJSValue>(&m_rows))
        return array->property(quint32(row)).toVariant();
    const auto *entries = std::get_if<Entries>(&m_rows);
    return entries && row >= 0 && row < entries->size() ? entries->at(row).value : QVariant();
}

QVariant ListRows::objectProperty(int row, const QString &name) const
{
    if (row < 0)
        return {};
    if (const auto *array = std::get_if<QJSValue>(&m_rows))
        return array->property(quint32(row)).property(name).toVariant();
    const auto *entries = std::get_if<Entries>(&m_rows);
    if (!entries || row >= entries->size())
        return {};
    const Entry &entry = entries->at(row);
    if (entry.object)
        return entry.object->property(name.toUtf8().constData());
    const QMetaType type = entry.value.metaType();
    if (type == QMetaType::fromType<QJSValue>())
        return entry.value.value<QJSValue>().property(name).toVariant();
    if (type == QMetaType::fromType<QVariantMap>())
        return static_cast<const QVariantMap *>(entry.value.constData())->value(name);
    if (type.flags().testFlag(QMetaType::IsGadget) && type.metaObject()) {
        const int index = type.metaObject()->indexOfProperty(name.toUtf8().constData());
        return index < 0 ? QVariant() : type.metaObject()->property(index).readOnGadget(entry.value.constData());
    }
    return {};
}
