#include "NativeTest.h"
#include "Sources.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/*!
    Holds every component to its limits on objects and bytes, and the benchmark itself to its word. Times are left
    alone: they are the machine's affair.
*/
class tst_Bench : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#ifdef UITOOLKIT_BENCH_PROGRAM
        m_program = QStringLiteral(UITOOLKIT_BENCH_PROGRAM);
#else
        QSKIP("This configuration is built without benchmarks");
#endif
        QVERIFY(m_dir.isValid());
    }

    void everyComponentKeepsItsLimits()
    {
        const Run run = bench(u"--check"_s);
        QVERIFY2(run.status == 0, qPrintable(run.errors));
        QVERIFY(run.json[u"failed"].toArray().isEmpty());

        // What the module lists is in the report, measured or skipped.
        QStringList reported;
        for (const QString &key : {u"instances"_s, u"skipped"_s}) {
            const QJsonArray entries = run.json[key].toArray();
            for (const QJsonValue &entry : entries)
                reported << entry[u"name"].toString();
        }
        const QStringList listed = Sources::listedTypes();
        QVERIFY(!listed.isEmpty());
        for (const QString &name : listed)
            QVERIFY2(reported.count(name) == 1, qPrintable(name));
    }

    // Known quantities come out as they are known, so that the unknown ones can be believed.
    void figuresAreSane()
    {
        const Run run = bench(u"--filter ^K(Rectangle|Text|Pane)$"_s);
        QCOMPARE(run.status, 0);
        QHash<QString, QJsonObject> byName;
        const QJsonArray instances = run.json[u"instances"].toArray();
        for (const QJsonValue &instance : instances) {
            const QString name = instance[u"name"].toString();
            byName[name] = instance.toObject();
            QVERIFY2(instance[u"createUs"].toDouble() > 0 && instance[u"destroyUs"].toDouble() > 0, qPrintable(name));
            QVERIFY2(instance[u"leftObjects"].toDouble() < 0.1, qPrintable(name));
        }
        const auto figure = [&byName](const QString &name, const QString &key) { return byName[name][key].toDouble(); };
        const auto objects = [&figure](const QString &name) { return figure(name, u"objects"_s); };
        QCOMPARE(objects(u"Item"_s), 1.0);
        QCOMPARE(objects(u"Rectangle"_s), 1.0);
        // A rectangle, a text, its anchors and two handlers.
        QCOMPARE(objects(u"hand-written button"_s), 5.0);
        QCOMPARE(figure(u"hand-written button"_s, u"toHandWritten"_s), 1.0);
        QVERIFY(objects(u"Material Button"_s) > objects(u"Basic Button"_s));
        if (run.json[u"bytesCounted"].toBool()) {
            const double item = figure(u"Item"_s, u"bytes"_s);
            const double rectangle = figure(u"Rectangle"_s, u"bytes"_s);
            QVERIFY2(item > 500 && item < rectangle && rectangle < 3000,
                     qPrintable(u"%1, %2"_s.arg(item).arg(rectangle)));
        }
        // Only what was asked for, each beside its counterparts.
        QVERIFY(!byName.contains(u"KItem"_s) && byName.contains(u"Basic Pane"_s)
                && byName.contains(u"Material Label"_s));
        QVERIFY(figure(u"KPane"_s, u"toMaterial"_s) > 0 && figure(u"KRectangle"_s, u"toPlain"_s) > 0);
        QVERIFY(!byName[u"KRectangle"_s].contains(u"toBasic"));
        for (const QString &section : {u"theme"_s, u"calls"_s, u"lists"_s, u"load"_s}) {
            const QJsonArray figures = run.json[section].toArray();
            QVERIFY2(!figures.isEmpty(), qPrintable(section));
            for (const QJsonValue &figure : figures)
                QVERIFY2(figure[u"value"].toDouble() > 0, qPrintable(figure[u"name"].toString()));
        }
    }

    void excessIsNamed()
    {
        const QString arguments = u"--filter ^K(Rectangle|Text|Pane)$ --budgets "_s;
        QCOMPARE(bench(arguments + u"limits.json --write-budgets"_s).status, 0);
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
        const Run tight = bench(arguments + u"tight.json --check"_s);
        QCOMPARE(tight.status, 1);
        QVERIFY2(tight.errors.contains(u"KText has "_s), qPrintable(tight.errors));
        QVERIFY2(!hasBytes || tight.errors.contains(u"KPane takes "_s), qPrintable(tight.errors));
        QVERIFY2(tight.errors.contains(u"KRectangle has no limits"_s), qPrintable(tight.errors));
    }

    void limitsAreRenewed()
    {
        write(u"old.json"_s, {{u"qt5.0"_s, QJsonObject{{u"KText"_s, QJsonObject{{u"objects"_s, 1}}}}}});
        const QString arguments = u"--filter ^KText$ --budgets old.json "_s;
        // Limits for another Qt do not apply to this one, and outlast the renewal.
        QCOMPARE(bench(arguments + u"--check"_s).status, 0);
        QCOMPARE(bench(arguments + u"--write-budgets"_s).status, 0);
        const QJsonObject limits = read(u"old.json"_s);
        QCOMPARE(limits.size(), 2);
        QCOMPARE(limits[u"qt5.0"][u"KText"][u"objects"].toInt(), 1);
        // What was measured once is measured again.
        const Run again = bench(arguments + u"--check"_s);
        QVERIFY2(again.status == 0, qPrintable(again.errors));
    }

    void wrongUseIsRefused_data()
    {
        const Table<QString, QString> row{"arguments", "culprit"};
        row("filter", "--filter K(", "--filter");
        row("rounds", "--rounds 0", "\"0\"");
        row("argument", "KText", "\"KText\"");
        row("half a file", "--budgets half.json", "half.json");
        QFile half(m_dir.filePath(u"half.json"_s));
        QVERIFY(half.open(QIODevice::WriteOnly));
        half.write("{ \"qt6.4\": {");
    }

    void wrongUseIsRefused()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, culprit);
        const Run run = bench(arguments);
        QCOMPARE(run.status, 2);
        QVERIFY2(run.errors.contains(culprit), qPrintable(run.errors));
        QVERIFY(run.json.isEmpty());
    }

private:
    struct Run
    {
        int status = -1;
        QString errors;
        QJsonObject json;
    };

    //! What came of a quick run with \a arguments, among the files of this test.
    Run bench(const QString &arguments) const
    {
        QFile::remove(m_dir.filePath(u"result.json"_s));
        QProcess process;
        process.setWorkingDirectory(m_dir.path());
        process.start(m_program, QStringList{u"--quick"_s, u"--json"_s, u"result.json"_s} + arguments.split(u' '));
        if (!process.waitForFinished(240000) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardError()), read(u"result.json"_s)};
    }

    QJsonObject read(const QString &name) const
    {
        return QJsonDocument::fromJson(Sources::text(m_dir.filePath(name)).toUtf8()).object();
    }

    void write(const QString &name, const QJsonObject &content) const
    {
        QFile output(m_dir.filePath(name));
        QVERIFY(output.open(QIODevice::WriteOnly));
        output.write(QJsonDocument(content).toJson());
    }

    QString m_program;
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_Bench)
#include "tst_bench.moc"
