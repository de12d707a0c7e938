#include "NativeTest.h"
#include "UTListAvatarSearchItem.h"
#include "UTListData.h"

#include <QAbstractListModel>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <limits>

using namespace Qt::StringLiterals;
using namespace UTListAvatarSearchItem;

namespace {

// A row is a character: "-" a plain one, "|" a divider, "A" the header of group A, "#" one without a name, "s" a header that
// can be selected.
enum Kind { Plain, Group, Divider, Sign };

Kind kindOf(QChar row)
{
    return row == u'-' ? Plain : row == u'|' ? Divider : row.isLower() ? Sign : Group;
}

//! A model that changes in every way that models have, and lies when told to.
class Rows : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { KindRole = Qt::UserRole, NameRole };

    explicit Rows(const QString &rows = {})
        : rows(rows)
    {
    }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : surplus + int(rows.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (index.row() >= rows.size())
            return {};
        const QChar row = rows[index.row()];
        return role == KindRole ? QVariant(kindOf(row)) : QVariant(row.isLetter() ? QString(row) : QString());
    }
    QHash<int, QByteArray> roleNames() const override { return {{KindRole, "kind"}, {NameRole, "name"}}; }

    void insert(int at, const QString &added)
    {
        beginInsertRows({}, at, at + int(added.size()) - 1);
        rows.insert(at, added);
        endInsertRows();
    }
    void remove(int first, int count)
    {
        beginRemoveRows({}, first, first + count - 1);
        rows.remove(first, count);
        endRemoveRows();
    }
    void move(int first, int count, int to)
    {
        if (!beginMoveRows({}, first, first + count - 1, {}, to))
            return;
        const QString moved = rows.mid(first, count);
        rows.remove(first, count).insert(to > first ? to - count : to, moved);
        endMoveRows();
    }
    void change(int at, QChar row)
    {
        const bool isNewName = kindOf(row) == kindOf(rows[at]);
        rows[at] = row;
        Q_EMIT dataChanged(index(at), index(at), isNewName ? QList<int>{NameRole} : QList<int>());
    }
    void reset(const QString &all)
    {
        beginResetModel();
        rows = all;
        endResetModel();
    }
    void lie()
    {
        Q_EMIT dataChanged(index(0), QModelIndex());
        beginInsertRows({}, 0, 3);
        endInsertRows();
        beginRemoveRows({}, 2, 3);
        endRemoveRows();
    }

    QString rows;
    int surplus = 0; // rows without data
};

//! The data of a list of such rows.
struct RowsData : UTListData
{
    explicit RowsData(Rows &model)
    {
        setItemTypeRole(u"kind"_s);
        setDisplayRole(u"name"_s);
        setSectionRole(QVariantList{Group, Sign});
        setUnSelectable(QVariantList{Group, Divider});
        setModel(QVariant::fromValue(&model));
    }
};

//! What is said of the list and of each row, and where the keys lead from there: "!" is into another group. The
//! places before and behind the list count, too.
QString everything(UTListData &data, const Rows &model)
{
    const auto place = [](const QVariantList &next) {
        return next[0].toString() + (next[1].toBool() ? u"!"_s : u""_s);
    };
    QStringList all(data.listDescription());
    for (int row = -1; row <= model.rows.size(); ++row) {
        data.setCurrentIndex(row);
        all << u"%1 < %2%3 > %4"_s.arg(place(data.nextSelectable(false)), data.itemSelective(row) ? u"*"_s : u""_s,
                                       data.itemDescription(row), place(data.nextSelectable(true)));
    }
    return all.join(u"; "_s);
}

} // namespace

//! Groups, positions and words of lists.
class tst_ListData : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void words_data()
    {
        const Table<QString, int, bool, QString, QString, QString> row{"rows", "module",      "clear",
                                                                       "list", "description", "explanation"};
        // The description is that of the last row, the explanation says everything.
        row("empty", "", Default, false, "0 Items", "", "List, 0 Items, ");
        row("one", "-", Default, false, "1 Item", "1 of 1", "List, 1 Item, ");
        row("one in the scheduler", "-", MeetingScheduler, false, "1 Item", "1 of 1", "1 Item, ");
        row("two in the scheduler", "--", MeetingScheduler, false, "2 Items", "2 of 2", "2 Items, ");
        row("many short-cuts", "-------", Keyboardshortcuts, false, "7 Items", "", "Tree, 7 Items, ");
        row("one short-cut", "-", Keyboardshortcuts, false, "1 Item", "", "List, 1 Item, ");
        row("header only", "A", Default, false, "1 Group", "A, Group", "List, 1 Group, A, Group");
        row("two groups", "A-B-", MeetingScheduler, false, "2 Groups", "1 of 1", "2 Groups, B, Group");
        row("header without a name", "#--", Default, false, "3 Items", "2 of 2", "List, 3 Items, ");
        row("second without a name", "A-#-", Default, false, "2 Groups", "1 of 1", "List, 2 Groups, ");
        row("clear", "---", Default, true, "", "", "");
        row("clear group", "A--", Default, true, "", "2 of 2", "A, Group");
        row("unknown module", "A--", 99, false, "1 Group", "2 of 2", "List, 1 Group, A, Group");
        row("phone number", "-", CallingTransfer, false, "", "Phone number, list", "");
        row("conference", "-A", CallingConference, false, "", "A, list", "");
        row("call", "A-", Calling, false, "", "", "");
    }

    void words()
    {
        QFETCH(QString, rows);
        QFETCH(int, module);
        QFETCH(bool, clear);
        Rows model(rows);
        RowsData data(model);
        data.setSourceModule(module);
        data.setIsClearMode(clear);
        const int last = int(rows.size()) - 1;
        QTEST(data.listDescription(), "list");
        QTEST(data.itemDescription(last), "description");
        QTEST(data.itemExplanation(last, true, true), "explanation");

        // The hint is spoken once, by the first row of a group of phone numbers only.
        const QHash<int, QString> hints = {
            {Calling,
             u"Use Enter to make an audio call, Use Tab for more options, Use Shift+F10 to open context menu on people list-items."_s},
            {CallingTransfer, u"Use Tab for more options"_s},
            {CallingConference, u"Use Enter to make an audio call, Use Tab for more options"_s}};
        const QString hint = hints.value(module);
        data.setShowFirstTime(true);
        const QString first = data.itemDescription(0);
        QCOMPARE(data.showFirstTime(), hint.isEmpty());
        QCOMPARE(first,
                 data.itemDescription(0) + (hint.isEmpty() ? hint : u", Use up & down arrow to navigate, "_s + hint));
    }

    void everyRow()
    {
        Rows model(u"||-|||--A-|s-#|-|"_s);
        RowsData data(model);
        QCOMPARE(everything(data, model),
                 u"4 Groups; -1 <  > 2!; " // before the list
                 "-1 < 1 of 3 > 2; -1 < 1 of 3 > 2; -1 < *1 of 3 > 6; 2 < 2 of 3 > 6; 2 < 2 of 3 > 6; 2 < 2 of 3 > 6; "
                 "2 < *2 of 3 > 7; 6 < *3 of 3 > 9!; "
                 "7! < A, Group > 9; 7! < *1 of 1 > 11!; 9 < 2 of 1 > 11!; "
                 "9! < *s, Group > 12; 11 < *2 of 2 > 15!; "
                 "12! < 1 of 1 > 15; 12! < 1 of 1 > 15; 12! < *1 of 1 > -1; 15 < 2 of 1 > -1; "
                 "15! <  > -1"_s); // behind it
    }

    //! However a model comes to its rows, the same is said of them.
    void anyChange()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        const auto below = [&](qsizetype limit) { return int(random.bounded(quint32(limit))); };
        const auto someRows = [&](int count) {
            QString rows;
            while (rows.size() < count)
                rows += u"---||ABs#"_s[below(9)];
            return rows;
        };
        Rows model;
        RowsData data(model);
        for (int step = 0; step < 600; ++step) {
            const int count = int(model.rows.size());
            const int first = below(qMax(count, 1));
            const int action = count == 0 ? 0 : below(15);
            if (action < 3)
                model.insert(below(count + 1), someRows(1 + below(6)));
            else if (action < 6)
                model.remove(first, 1 + below(qMin(count - first, 9)));
            else if (action < 10)
                model.move(first, 1 + below(count - first), below(count + 1));
            else if (action < 14)
                model.change(first, someRows(1)[0]);
            else
                model.reset(someRows(below(40)));
            RowsData afresh(model);
            QVERIFY2(everything(data, model) == everything(afresh, model),
                     qPrintable(u"seed %1, step %2: %3"_s.arg(seed).arg(step).arg(model.rows)));
        }
    }

    void models_data()
    {
        const Table<QString, QString, QString> row{"members", "list", "description"}; // of row 1
        const QString elements =
            u"ListElement { isSection: true; sectionName: 'A' } ListElement { isSection: false }"_s;
        const QString object = u"QtObject { property bool isSection: true; property string sectionName: 'A' }"_s;
        const QString map = u"{ isSection: true, sectionName: 'A' }"_s;
        row("nothing", "", "0 Items", "");
        row("null", "model: null", "0 Items", "");
        row("list model", u"model: ListModel { %1 }"_s.arg(elements), "1 Group", "1 of 1");
        row("filled late",
            u"property var m: ListModel {} model: m; Component.onCompleted: m.append([{ l: 'x' }, %1])"_s.arg(map),
            "2 Groups", "A, Group");
        row("delegate model", u"model: DelegateModel { model: ListModel { %1 } }"_s.arg(elements), "1 Group", "1 of 1");
        row("object model", u"model: ObjectModel { QtObject {} %1 }"_s.arg(object), "2 Groups", "A, Group");
        row("array of objects", u"model: [%1, { isSection: false }, null]"_s.arg(map), "1 Group", "1 of 2");
        row("array of items", u"model: [o, o]; property QtObject o: %1"_s.arg(object), "2 Groups", "A, Group");
        row("list of items",
            "model: l; property list<QtObject> l: [QtObject { property bool isSection: true }, QtObject {}]", "2 Items",
            "1 of 1");
        row("values",
            "model: ['a', 'b', 'A']; itemTypeRole: 'modelData'; displayRole: 'modelData'; sectionRole: ['b']; "
            "unSelectable: 'a'",
            "2 Groups", "b, Group");
        row("number", "model: 3", "3 Items", "2 of 3");
        row("fraction", "model: 2.9", "2 Items", "2 of 2");
        row("negative", "model: -3", "0 Items", "");
        row("not a number", "model: NaN", "0 Items", "");
        row("endless", "model: Infinity", "2147483647 Items", "2 of 2147483647");
        row("one object", u"model: (%1)"_s.arg(map), "1 Group", "");
        row("text", "model: 'abc'", "1 Item", "");
        row("hole", u"model: { const a = []; a[1] = %1; return a }"_s.arg(map), "2 Groups", "A, Group");
    }

    void models()
    {
        QFETCH(QString, members);
        QQmlEngine engine;
        const auto data = create(engine,
                                 "import QtQml\nimport QtQml.Models\nimport UIToolkitQml 1.0\n"
                                 "import UIToolkitQml_Private_Data 1.0\nUTListData { id: data; "
                                     + members.toUtf8() + " }");
        QTEST(data->property("listDescription").toString(), "list");
        QString description;
        QVERIFY(QMetaObject::invokeMethod(data.get(), "itemDescription", Q_RETURN_ARG(QString, description),
                                          Q_ARG(int, 1)));
        QTEST(description, "description");
    }

    void trees()
    {
        auto gone = std::make_unique<QObject>();
        QObject header;
        header.setProperty("isGroupHeader", true);
        UTListData data;
        data.setSourceModule(Keyboardshortcuts);
        data.setModel(QVariantList{QVariant::fromValue(&header), QVariantMap{{u"isGroupHeader"_s, false}},
                                   QVariant::fromValue(gone.get()), 7});
        gone.reset();
        QStringList texts;
        for (int row = -1; row < 5; ++row)
            texts << data.itemDescription(row);
        QCOMPARE(texts, QStringList({{}, u"tree item, Level 1"_s, u"tree item, Level 2"_s, {}, {}, {}}));
    }

    void liars()
    {
        auto model = std::make_unique<Rows>(u"A--B-"_s);
        RowsData data(*model);
        const int wild[] = {std::numeric_limits<int>::min(), -2, -1, 5, 1000, std::numeric_limits<int>::max()};
        // Signals about rows that do not exist, and rows that come without one.
        for (const int row : wild) {
            model->lie();
            QCOMPARE(data.listDescription(), u"2 Groups"_s);
            data.setCurrentIndex(row);
            QVERIFY(!data.itemSelective(row) && data.itemDescription(row).isEmpty());
            QCOMPARE(data.itemExplanation(row, false, true), QString());
            data.nextSelectable(true);
            data.nextSelectable(false);
        }
        model->rows = u"-A-"_s;
        Q_EMIT model->dataChanged(model->index(1), model->index(1));
        QCOMPARE(data.itemDescription(1), u"A, Group"_s);
        model->surplus = 2;
        Q_EMIT model->layoutChanged();
        QCOMPARE(data.itemDescription(4), u"3 of 3"_s);
        model->surplus = -100;
        Q_EMIT model->layoutChanged();
        QCOMPARE(data.listDescription(), u"0 Items"_s);
        data.setItemTypeRole(u"no such role"_s);
        model->surplus = 0;
        model.reset();
        QCOMPARE(data.listDescription(), u"0 Items"_s);
        QVERIFY(!data.model().isValid());
        QCOMPARE(data.nextSelectable(true), QVariantList({-1, false}));
    }

    void signalOnlyForNews()
    {
        Rows model(u"A--"_s);
        RowsData data(model);
        const QSignalSpy news(&data, &UTListData::listDescritpionChanged);
        model.insert(1, u"--"_s);
        data.setCurrentIndex(2);
        data.setShowFirstTime(true);
        QCOMPARE(news.count(), 0);
        model.insert(1, u"B"_s);
        QCOMPARE(news.count(), 1);
        data.classBegin();
        model.reset({});
        QCOMPARE(data.listDescription(), u"2 Groups"_s);
        data.componentComplete();
        QCOMPARE(data.listDescription(), u"0 Items"_s);
        QCOMPARE(news.count(), 2);
    }
};

QTEST_MAIN(tst_ListData)
#include "tst_listdata.moc"
