#include "ListBench.h"

#include "CpuClock.h"
#include "Statistics.h"

#include <UTListData.h>

#include <QAbstractListModel>
#include <QLocale>
#include <QQmlComponent>
#include <QQmlEngine>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int manyRows = 100000;
constexpr int fewRows = 1000;
constexpr int quickFraction = 10;
constexpr int groupSize = 50;
constexpr int descriptions = 10000;
constexpr double usPerMs = 1000;

class Rows : public QAbstractListModel
{
public:
    enum Role { IsSection = Qt::UserRole, SectionName };

    explicit Rows(int count)
        : m_count(count)
    {
    }
    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_count; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == IsSection ? QVariant(index.row() % groupSize == 0) : QVariant(QString::number(index.row()));
    }
    QHash<int, QByteArray> roleNames() const override
    {
        return {{IsSection, "isSection"}, {SectionName, "sectionName"}};
    }
    void insertFirst()
    {
        beginInsertRows({}, 0, 0);
        ++m_count;
        endInsertRows();
    }

private:
    int m_count;
};

//! Milliseconds that \a work takes, the median of some rounds.
double msOf(int rounds, const std::function<void()> &work)
{
    work();
    QList<double> times;
    for (int round = 0; round < rounds; ++round) {
        CpuClock clock;
        work();
        times << clock.lap() / usPerMs;
    }
    return median(times);
}

void readEachKind(const Rows &rows)
{
    for (int row = 0; row < rows.rowCount(); ++row) {
        // Through volatile, or the compiler might leave the call out.
        volatile bool isSection = rows.data(rows.index(row, 0), Rows::IsSection).toBool();
        Q_UNUSED(isSection)
    }
}

double usOfDescription(UTListData &data, Rows &rows, int rounds)
{
    data.setModel(QVariant::fromValue<QObject *>(&rows));
    const double ms = msOf(rounds, [&] {
        // Rows all over the list.
        for (int i = 0; i < descriptions; ++i)
            data.itemDescription(int(i * 7919LL % rows.rowCount()));
    });
    return ms * usPerMs / descriptions;
}

} // namespace

void ListBench::run(QQmlEngine *engine, Results &results)
{
    const int rounds = results.rounds;
    const int count = results.quick ? manyRows / quickFraction : manyRows;
    QQmlComponent component(engine);
    component.setData("import QtQml\nimport QtQml.Models\n"
                      "QtObject {\n"
                      "    property ListModel listModel: ListModel {}\n"
                      "    property var array: []\n"
                      "    function fill(count: int, groupSize: int) {\n"
                      "        for (let i = 0; i < count; ++i)\n"
                      "            array.push({ isSection: i % groupSize === 0, sectionName: String(i) });\n"
                      "        listModel.append(array);\n"
                      "    }\n"
                      "}\n",
                      QUrl(u"qrc:/uitoolkit_bench/Lists.qml"_s));
    const std::unique_ptr<QObject> models(component.create());
    if (!models)
        qFatal("%s", qPrintable(component.errorString()));
    QMetaObject::invokeMethod(models.get(), "fill", Q_ARG(int, count), Q_ARG(int, groupSize));

    Rows rows(count);
    Rows few(fewRows);
    UTListData data;
    const auto rebuild = [&](const QVariant &model) { return msOf(rounds, [&] { data.setModel(model); }); };
    const QString number = QLocale(QLocale::English).toString(count);
    const auto add = [&results](const QString &name, double value, const QString &unit) {
        results.lists.append({name, value, unit});
    };
    add(u"reading the kind of %1 rows alone"_s.arg(number), msOf(rounds, [&] { readEachKind(rows); }), u"ms"_s);
    add(u"groups of an item model of %1"_s.arg(number), rebuild(QVariant::fromValue<QObject *>(&rows)), u"ms"_s);
    add(u"groups of a ListModel of %1"_s.arg(number), rebuild(models->property("listModel")), u"ms"_s);
    add(u"groups of an array of %1"_s.arg(number), rebuild(models->property("array")), u"ms"_s);
    add(u"a description among %1"_s.arg(QLocale(QLocale::English).toString(fewRows)),
        usOfDescription(data, few, rounds), u"us"_s);
    add(u"a description among %1"_s.arg(number), usOfDescription(data, rows, rounds), u"us"_s);
    add(u"a row put in front of them"_s, msOf(rounds, [&] { rows.insertFirst(); }) * usPerMs, u"us"_s);
}
