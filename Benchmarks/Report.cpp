#include "Report.h"

#include "AllocationCounter.h"

#include <QJsonArray>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double bytesPerKb = 1024;

QString number(double value, int decimals)
{
    return std::isnan(value) ? u"-"_s : QString::number(value, 'f', decimals);
}

// Rows of cells, the first column left-aligned and the others right-aligned.
class Table
{
public:
    void add(const QStringList &cells) { m_rows << cells; }

    //! \a rulesAfter: numbers of the rows that a line is drawn after.
    QString toText(const QList<qsizetype> &rulesAfter) const
    {
        QList<qsizetype> widths;
        for (const QStringList &row : m_rows) {
            widths.resize(qMax(widths.size(), row.size()));
            for (qsizetype column = 0; column < row.size(); ++column)
                widths[column] = qMax(widths[column], row[column].size());
        }
        qsizetype total = 0;
        for (const qsizetype width : std::as_const(widths))
            total += width + gap;

        QString text;
        for (qsizetype i = 0; i < m_rows.size(); ++i) {
            QString line;
            for (qsizetype column = 0; column < m_rows[i].size(); ++column) {
                const QString &cell = m_rows[i][column];
                line += column == 0 ? cell.leftJustified(widths[0])
                                    : QString(gap, u' ') + cell.rightJustified(widths[column]);
            }
            while (line.endsWith(u' '))
                line.chop(1);
            text += line + u'\n';
            if (rulesAfter.contains(i))
                text += QString(total - gap, u'-') + u'\n';
        }
        return text;
    }

private:
    static constexpr qsizetype gap = 2;
    QList<QStringList> m_rows;
};

QString instancesTable(const Results &results)
{
    Table table;
    table.add({u"one instance of"_s, u"create us"_s, u"destroy us"_s, u"x hand-written"_s, u"x plain"_s, u"x Basic"_s,
               u"x Material"_s, u"objects"_s, u"KB"_s, u"script KB"_s, u"1,000 / 100"_s, u""_s});
    QList<qsizetype> rules = {0};
    qsizetype row = 0;
    bool inComponents = false;
    for (const InstanceResult &result : results.instances) {
        if (result.isComponent && !inComponents) {
            rules << row;
            inComponents = true;
        }
        ++row;
        const Growth growth = result.growth.value_or(Growth());
        QStringList notes;
        if (growth.isFlagged)
            notes << u"costs more among many"_s;
        if (result.leftObjects >= ownObject)
            notes << u"leaves %1 objects behind"_s.arg(number(result.leftObjects, 2));
        table.add({result.name, number(result.createUs, 1), number(result.destroyUs, 1),
                   number(result.toHandWritten, 2), number(result.toPlain, 2), number(result.toBasic, 2),
                   number(result.toMaterial, 2), number(result.objects, 1), number(result.bytes / bytesPerKb, 2),
                   number(result.scriptBytes / bytesPerKb, 2), number(growth.createUsMany / growth.createUsFew, 2),
                   notes.join("; "_L1)});
    }
    return table.toText(rules);
}

QString figuresTable(const QString &title, const QList<Figure> &figures)
{
    if (figures.isEmpty())
        return {};
    Table table;
    for (const Figure &figure : figures)
        table.add({figure.name, number(figure.value, 2), figure.unit});
    return u'\n' + title + u'\n' + table.toText({});
}

QString namesWithReasons(const QString &title, const QList<Subjects::Skipped> &list)
{
    QString text;
    for (const Subjects::Skipped &entry : list)
        text += u"%1 %2: %3\n"_s.arg(title, entry.name, entry.reason);
    return text.isEmpty() ? text : u'\n' + text;
}

void insert(QJsonObject &object, const QString &key, double value)
{
    if (std::isfinite(value))
        object[key] = value;
}

void insert(QJsonObject &object, const QString &key, const QString &value)
{
    if (!value.isEmpty())
        object[key] = value;
}

QJsonObject toJson(const InstanceResult &result)
{
    QJsonObject object = {{u"name"_s, result.name}, {u"kind"_s, result.isComponent ? u"component"_s : u"baseline"_s}};
    insert(object, u"createUs"_s, result.createUs);
    insert(object, u"destroyUs"_s, result.destroyUs);
    insert(object, u"objects"_s, result.objects);
    insert(object, u"bytes"_s, result.bytes);
    insert(object, u"scriptBytes"_s, result.scriptBytes);
    insert(object, u"leftObjects"_s, result.leftObjects);
    insert(object, u"toHandWritten"_s, result.toHandWritten);
    insert(object, u"plain"_s, result.plain);
    insert(object, u"toPlain"_s, result.toPlain);
    insert(object, u"control"_s, result.control);
    insert(object, u"toBasic"_s, result.toBasic);
    insert(object, u"toMaterial"_s, result.toMaterial);
    if (result.growth) {
        QJsonObject growth;
        insert(growth, u"createUsAmong100"_s, result.growth->createUsFew);
        insert(growth, u"createUsAmong1000"_s, result.growth->createUsMany);
        insert(growth, u"objectsAmong1000"_s, result.growth->objectsMany);
        insert(growth, u"bytesAmong1000"_s, result.growth->bytesMany);
        growth[u"flagged"_s] = result.growth->isFlagged;
        object[u"growth"_s] = growth;
    }
    return object;
}

QJsonArray toJson(const QList<Figure> &figures)
{
    QJsonArray array;
    for (const Figure &figure : figures) {
        QJsonObject object = {{u"name"_s, figure.name}, {u"unit"_s, figure.unit}};
        insert(object, u"value"_s, figure.value);
        array.append(object);
    }
    return array;
}

QJsonArray toJson(const QList<Subjects::Skipped> &list)
{
    QJsonArray array;
    for (const Subjects::Skipped &entry : list)
        array.append(QJsonObject{{u"name"_s, entry.name}, {u"reason"_s, entry.reason}});
    return array;
}

} // namespace

QString Report::toText(const Results &results)
{
    QString text = u"Qt %1, %2, medians of %3 rounds, processor time\n\n"_s.arg(
        QLatin1StringView(qVersion()), QStringLiteral(UITOOLKIT_BUILD_TYPE), QString::number(results.rounds));
    text += instancesTable(results);
    text += figuresTable(u"Change of theme"_s, results.theme);
    text += figuresTable(u"Reading a colour set"_s, results.calls);
    text += figuresTable(u"Long lists"_s, results.lists);
    text += figuresTable(u"The compose area"_s, results.richText);
    text += figuresTable(u"Loading, all threads, in a process of its own"_s, results.load);
    text += namesWithReasons(u"skipped"_s, results.skipped);
    text += namesWithReasons(u"FAILED"_s, results.failed);
    return text;
}

QJsonObject Report::toJson(const Results &results)
{
    QJsonArray instances;
    for (const InstanceResult &result : results.instances)
        instances.append(::toJson(result));
    return {{u"format"_s, 1},
            {u"qt"_s, QString::fromLatin1(qVersion())},
            {u"build"_s, QStringLiteral(UITOOLKIT_BUILD_TYPE)},
            {u"rounds"_s, results.rounds},
            {u"quick"_s, results.quick},
            {u"bytesCounted"_s, AllocationCounter::isAvailable()},
            {u"instances"_s, instances},
            {u"theme"_s, ::toJson(results.theme)},
            {u"calls"_s, ::toJson(results.calls)},
            {u"lists"_s, ::toJson(results.lists)},
            {u"richText"_s, ::toJson(results.richText)},
            {u"load"_s, ::toJson(results.load)},
            {u"skipped"_s, ::toJson(results.skipped)},
            {u"failed"_s, ::toJson(results.failed)}};
}
