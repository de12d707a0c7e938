#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/*!
    Holds every component to its limits on objects and bytes, and the benchmark itself to its word. Times are left
    alone: they are the machine's affair.
*/
class tst_Bench : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }
    void everyComponentKeepsItsLimits();
    void figuresAreSane();
    void excessIsNamed();
    void limitsAreRenewed();
    void wrongUseIsRefused_data();
    void wrongUseIsRefused();

private:
    struct Run
    {
        int status = -1;
        QString errors;
        QJsonObject json;
    };
    Run bench(const QStringList &arguments) const;
    QString file(const QString &name) const { return m_dir.filePath(name); }
    QJsonObject read(const QString &name) const;
    void write(const QString &name, const QJsonObject &content) const;

    QString m_program;
    QTemporaryDir m_dir;
};

void tst_Bench::initTestCase()
{
#ifdef UITOOLKIT_BENCH_PROGRAM
    m_program = QStringLiteral(UITOOLKIT_BENCH_PROGRAM);
#else
    QSKIP("This configuration is built without benchmarks");
#endif
    QVERIFY(m_dir.isValid());
}

tst_Bench::Run tst_Bench::bench(const QStringList &arguments) const
{
    const QString json = u"result.json"_s;
    QFile::remove(file(json));
    QProcess process;
    process.start(m_program, QStringList{u"--quick"_s, u"--json"_s, file(json)} + arguments);
    if (!process.waitForFinished(240000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError()), read(json)};
}

QJsonObject tst_Bench::read(const QString &name) const
{
    QFile input(file(name));
    return input.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(input.readAll()).object() : QJsonObject();
}

void tst_Bench::write(const QString &name, const QJsonObject &content) const
{
    QFile output(file(name));
    QVERIFY(output.open(QIODevice::WriteOnly));
    output.write(QJsonDocument(content).toJson());
}

void tst_Bench::everyComponentKeepsItsLimits()
{
    const Run run = bench({u"--check"_s});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QVERIFY(run.json[u"failed"].toArray().isEmpty());

    // What the module lists is in the report, measured or skipped.
    QFile listing(QStringLiteral(UITOOLKIT_QML_DIR "/UIToolkitQml/qmldir"));
    QVERIFY(listing.open(QIODevice::ReadOnly));
    QStringList reported;
    for (const QString &key : {u"instances"_s, u"skipped"_s}) {
        const QJsonArray entries = run.json[key].toArray();
        for (const QJsonValue &entry : entries)
            reported << entry[u"name"].toString();
    }
    static const QRegularExpression entry(u"^(?:singleton )?(\\w+) 1\\.0 \\w+\\.qml$"_s,
                                          QRegularExpression::MultilineOption);
    int listed = 0;
    const QString lines = QString::fromUtf8(listing.readAll());
    QRegularExpressionMatchIterator match = entry.globalMatch(lines);
    for (; match.hasNext(); ++listed) {
        const QString name = match.next().captured(1);
        // Qt 6.4 lists internal types twice.
        if (lines.contains(u"\ninternal %1 "_s.arg(name)))
            continue;
        QVERIFY2(reported.count(name) == 1, qPrintable(name));
    }
    QVERIFY(listed > 0);
}

// Known quantities come out as they are known, so that the unknown ones can be believed.
void tst_Bench::figuresAreSane()
{
    const Run run = bench({u"--filter"_s, u"^K(Rectangle|Text|Pane)$"_s});
    QCOMPARE(run.status, 0);
    QHash<QString, QJsonObject> byName;
    const QJsonArray instances = run.json[u"instances"].toArray();
    for (const QJsonValue &instance : instances) {
        byName[instance[u"name"].toString()] = instance.toObject();
        QVERIFY2(instance[u"createUs"].toDouble() > 0 && instance[u"destroyUs"].toDouble() > 0,
                 qPrintable(instance[u"name"].toString()));
        QVERIFY(instance[u"leftObjects"].toDouble() < 0.1);
    }
    QCOMPARE(byName[u"Item"_s][u"objects"].toDouble(), 1.0);
    QCOMPARE(byName[u"Rectangle"_s][u"objects"].toDouble(), 1.0);
    // A rectangle, a text, its anchors and two handlers.
    QCOMPARE(byName[u"hand-written button"_s][u"objects"].toDouble(), 5.0);
    QCOMPARE(byName[u"hand-written button"_s][u"toHandWritten"].toDouble(), 1.0);
    QVERIFY(byName[u"Material Button"_s][u"objects"].toDouble() > byName[u"Basic Button"_s][u"objects"].toDouble());
    if (run.json[u"bytesCounted"].toBool()) {
        const double item = byName[u"Item"_s][u"bytes"].toDouble();
        const double rectangle = byName[u"Rectangle"_s][u"bytes"].toDouble();
        QVERIFY2(item > 500 && item < rectangle && rectangle < 3000, qPrintable(u"%1, %2"_s.arg(item).arg(rectangle)));
    }
    // Only what was asked for, each beside its counterparts.
    QVERIFY(!byName.contains(u"KItem"_s) && byName.contains(u"Basic Pane"_s) && byName.contains(u"Material Label"_s));
    QVERIFY(byName[u"KPane"_s][u"toMaterial"].toDouble() > 0);
    QVERIFY(byName[u"KRectangle"_s][u"toPlain"].toDouble() > 0);
    QVERIFY(!byName[u"KRectangle"_s].contains(u"toBasic"));
    for (const QString &section : {u"theme"_s, u"calls"_s, u"lists"_s, u"load"_s}) {
        const QJsonArray figures = run.json[section].toArray();
        QVERIFY2(!figures.isEmpty(), qPrintable(section));
        for (const QJsonValue &figure : figures)
            QVERIFY2(figure[u"value"].toDouble() > 0, qPrintable(figure[u"name"].toString()));
    }
}

void tst_Bench::excessIsNamed()
{
    QCOMPARE(bench({u"--filter"_s, u"^K(Rectangle|Text|Pane)$"_s, u"--write-budgets"_s, u"--budgets"_s,
                    file(u"limits.json"_s)})
                 .status,
             0);
    const QJsonObject limits = read(u"limits.json"_s);
    QCOMPARE(limits.size(), 1);
    const QString version = limits.begin().key();
    QJsonObject components = limits[version].toObject();
    QCOMPARE(components.size(), 3);
    const bool hasBytes = components[u"KPane"_s][u"bytes"].isDouble();

    // One component each with an object too many, bytes too many, and no limits at all.
    QJsonObject text = components[u"KText"_s].toObject();
    text[u"objects"] = text[u"objects"].toInt() - 1;
    components[u"KText"_s] = text;
    QJsonObject pane = components[u"KPane"_s].toObject();
    pane[u"bytes"] = pane[u"bytes"].toInt() * 0.9;
    components[u"KPane"_s] = pane;
    components.remove(u"KRectangle"_s);
    write(u"tight.json"_s, {{version, components}});
    const Run tight =
        bench({u"--filter"_s, u"^K(Rectangle|Text|Pane)$"_s, u"--check"_s, u"--budgets"_s, file(u"tight.json"_s)});
    QCOMPARE(tight.status, 1);
    QVERIFY2(tight.errors.contains(u"KText has "_s), qPrintable(tight.errors));
    QVERIFY2(!hasBytes || tight.errors.contains(u"KPane takes "_s), qPrintable(tight.errors));
    QVERIFY2(tight.errors.contains(u"KRectangle has no limits"_s), qPrintable(tight.errors));
}

void tst_Bench::limitsAreRenewed()
{
    write(u"old.json"_s, {{u"qt5.0"_s, QJsonObject{{u"KText"_s, QJsonObject{{u"objects"_s, 1}}}}}});
    const QStringList arguments = {u"--filter"_s, u"^KText$"_s, u"--budgets"_s, file(u"old.json"_s)};
    // Limits for another Qt do not apply to this one, and outlast the renewal.
    QCOMPARE(bench(arguments + QStringList{u"--check"_s}).status, 0);
    QCOMPARE(bench(arguments + QStringList{u"--write-budgets"_s}).status, 0);
    const QJsonObject limits = read(u"old.json"_s);
    QCOMPARE(limits.size(), 2);
    QCOMPARE(limits[u"qt5.0"][u"KText"][u"objects"].toInt(), 1);
    // What was measured once is measured again.
    const Run again = bench(arguments + QStringList{u"--check"_s});
    QVERIFY2(again.status == 0, qPrintable(again.errors));
}

void tst_Bench::wrongUseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("culprit");

    QTest::newRow("filter") << QStringList{u"--filter"_s, u"K("_s} << u"--filter"_s;
    QTest::newRow("rounds") << QStringList{u"--rounds"_s, u"0"_s} << u"\"0\""_s;
    QTest::newRow("argument") << QStringList{u"KText"_s} << u"\"KText\""_s;
    QTest::newRow("half a file") << QStringList{u"--budgets"_s, file(u"half.json"_s)} << u"half.json"_s;
    QFile half(file(u"half.json"_s));
    QVERIFY(half.open(QIODevice::WriteOnly));
    half.write("{ \"qt6.4\": {");
}

void tst_Bench::wrongUseIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, culprit);

    const Run run = bench(arguments);
    QCOMPARE(run.status, 2);
    QVERIFY2(run.errors.contains(culprit), qPrintable(run.errors));
    QVERIFY(run.json.isEmpty());
}

QTEST_GUILESS_MAIN(tst_Bench)
#include "tst_bench.moc"
