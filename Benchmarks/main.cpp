#include "AllocationCounter.h"
#include "Budgets.h"
#include "InstanceBench.h"
#include "ListBench.h"
#include "LoadBench.h"
#include "ObjectCounter.h"
#include "Report.h"
#include "RichTextBench.h"
#include "Subjects.h"
#include "ThemeBench.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QMutex>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSaveFile>
#include <QSet>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultRounds = 9;
constexpr int quickRounds = 3;

// 0: done; 1: something is over its limit or cannot be created; 2: wrong use.
enum ExitStatus { Done, Failed, Misused };

void say(const QString &line)
{
    std::fprintf(stderr, "uitoolkit_bench: %s\n", qPrintable(line));
}

// One message of a component would be printed for each of its thousand instances.
void printOnce(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static QSet<QString> printed;
    static QBasicMutex mutex;
    const QString line = qFormatLogMessage(type, context, text);
    const QMutexLocker locker(&mutex);
    if (!printed.contains(line)) {
        printed.insert(line);
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
}

bool writeJson(const QString &path, const Results &results)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(Report::toJson(results)).toJson()) > 0
        && file.commit()) {
        say(u"the same as JSON is in %1"_s.arg(path));
        return true;
    }
    say(u"%1 cannot be written: %2"_s.arg(path, file.errorString()));
    return false;
}

// The first use of the module makes its plugin register the types and lay out the bundle.
bool importToolkit(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport UIToolkitQml 1.0\nQtObject {}", QUrl(u"qrc:/uitoolkit_bench/Import.qml"_s));
    const std::unique_ptr<QObject> object(component.create());
    if (!object)
        say(component.errorString().trimmed());
    return object != nullptr;
}

bool check(const Budgets &budgets, const Results &results)
{
    if (!AllocationCounter::isAvailable())
        say(u"bytes cannot be counted in this build and are not checked"_s);
    if (!budgets.knowThisQt())
        say(u"there are no limits for Qt %1; --write-budgets makes them"_s.arg(QLatin1StringView(qVersion())));
    const QStringList remarks = budgets.remarks(results);
    for (const QString &remark : remarks)
        say(remark);
    const QStringList violations = budgets.violations(results);
    for (const QString &violation : violations)
        say(violation);
    if (!violations.isEmpty())
        say(u"check failed; where it costs more on purpose, --write-budgets renews the limits"_s);
    return violations.isEmpty();
}

} // namespace

int main(int argc, char *argv[])
{
    ObjectCounter::install();
    // How much a hash holds depends on its seed.
    QHashSeed::setDeterministicGlobalSeed();
    // Compiled files are what applications run.
    qunsetenv("QML_DISABLE_DISK_CACHE");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // The styles under test are imported by name; this one is for what imports Qt Quick Controls without one.
    QQuickStyle::setStyle(u"Basic"_s);
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"uitoolkit_bench"_s);
    qInstallMessageHandler(printOnce);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Prints what each component of UIToolkitQml costs."_s);
    parser.addHelpOption();
    const QCommandLineOption filterOption(u"filter"_s, u"Only components whose name matches."_s, u"regex"_s);
    const QCommandLineOption roundsOption(u"rounds"_s, u"How often each is timed (%1)."_s.arg(defaultRounds),
                                          u"number"_s);
    const QCommandLineOption quickOption(u"quick"_s, u"Few rounds, small batches, no measuring among many."_s);
    const QCommandLineOption jsonOption(u"json"_s, u"Where the results are written as JSON."_s, u"file"_s,
                                        QStringLiteral(UITOOLKIT_BENCH_JSON));
    const QCommandLineOption checkOption(u"check"_s, u"Fail when a component is over its limits."_s);
    const QCommandLineOption writeOption(u"write-budgets"_s, u"Make what was measured the limits."_s);
    const QCommandLineOption budgetsOption(u"budgets"_s, u"The file of limits."_s, u"file"_s,
                                           QStringLiteral(UITOOLKIT_BUDGETS_FILE));
    QCommandLineOption loadOption(u"load"_s, u"Internal: load one module and print the time."_s, u"key"_s);
    loadOption.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions(
        {filterOption, roundsOption, quickOption, jsonOption, checkOption, writeOption, budgetsOption, loadOption});
    parser.process(application);

    if (parser.isSet(loadOption))
        return LoadBench::loadOnce(parser.value(loadOption));

    const QRegularExpression filter(parser.value(filterOption));
    if (!filter.isValid()) {
        say(u"--filter: %1"_s.arg(filter.errorString()));
        return Misused;
    }
    Results results;
    results.quick = parser.isSet(quickOption);
    results.rounds = results.quick ? quickRounds : defaultRounds;
    if (parser.isSet(roundsOption)) {
        bool isNumber = false;
        results.rounds = parser.value(roundsOption).toInt(&isNumber);
        if (!isNumber || results.rounds < 1) {
            say(u"--rounds: \"%1\" is not a number of rounds"_s.arg(parser.value(roundsOption)));
            return Misused;
        }
    }
    if (!parser.positionalArguments().isEmpty()) {
        say(u"\"%1\" is not understood; see --help"_s.arg(parser.positionalArguments().constFirst()));
        return Misused;
    }
    Budgets budgets(parser.value(budgetsOption));
    if (!budgets.error().isEmpty()) {
        say(budgets.error());
        return Misused;
    }

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
    engine.addImportPath(u"qrc:/qt/qml"_s);
    if (!importToolkit(engine))
        return Failed;
    const Subjects subjects = findSubjects(filter);
    results.skipped = subjects.skipped;
    {
        InstanceStage stage(&engine);
        InstanceBench(stage, subjects.list).run(results);
        ThemeBench::run(stage, results);
        RichTextBench::run(stage, results);
    }
    ListBench::run(&engine, results);
    LoadBench::run(results);

    std::fputs(qPrintable(Report::toText(results)), stdout);
    std::fflush(stdout);

    bool passed = writeJson(parser.value(jsonOption), results);
    if (parser.isSet(writeOption)) {
        if (!budgets.renew(results)) {
            say(budgets.error());
            passed = false;
        }
    }
    if (parser.isSet(checkOption))
        passed = check(budgets, results) && passed;
    return passed ? Done : Failed;
}
