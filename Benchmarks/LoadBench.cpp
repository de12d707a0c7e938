#include "LoadBench.h"

#include "CpuClock.h"
#include "Statistics.h"
#include "Subjects.h"

#include <QCoreApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Load
{
    const char *key;
    const char *name;
    const char *document;
    bool allComponents;
};

constexpr Load loads[] = {
    {"toolkit", "UIToolkitQml, first component", "import UIToolkitQml 1.0\nKRectangle {}", false},
    {"toolkit-all", "UIToolkitQml, all components", "import UIToolkitQml 1.0\nKRectangle {}", true},
    {"basic", "Basic, first Button", "import QtQuick.Controls.Basic\nButton {}", false},
    {"material", "Material, first Button", "import QtQuick.Controls.Material\nButton {}", false},
};

constexpr int largestRounds = 5;
constexpr int timeoutMs = 60000;

bool makeOne(QQmlEngine &engine, const QByteArray &document)
{
    QQmlComponent component(&engine);
    component.setData(document, QUrl(u"qrc:/uitoolkit_bench/Load.qml"_s));
    const std::unique_ptr<QObject> object(component.create());
    if (!object)
        qWarning("%s", qPrintable(component.errorString()));
    return object != nullptr;
}

} // namespace

int LoadBench::loadOnce(const QString &what)
{
    const auto load = std::find_if(std::begin(loads), std::end(loads),
                                   [&what](const Load &load) { return what == QLatin1StringView(load.key); });
    if (load == std::end(loads))
        return EXIT_FAILURE;

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
    // Qt Quick itself is not what is measured.
    if (!makeOne(engine, "import QtQuick\nItem { Text { text: \"Text\" } }"))
        return EXIT_FAILURE;

    // The engine compiles in a thread of its own, so every thread counts.
    CpuClock clock(CpuClock::Process);
    if (!makeOne(engine, load->document))
        return EXIT_FAILURE;
    if (load->allComponents) {
        // Compiled, not created: some cannot be created without what their users give them.
        const QList<Subject> subjects = findSubjects(QRegularExpression()).list;
        for (const Subject &subject : subjects) {
            if (!subject.isComponent)
                continue;
            QQmlComponent component(&engine);
            component.setData(subject.document, QUrl(u"qrc:/uitoolkit_bench/Load.qml"_s));
        }
    }
    std::printf("%.1f\n", clock.lap());
    return EXIT_SUCCESS;
}

void LoadBench::run(Results &results)
{
    QList<double> ms[std::size(loads)];
    for (int round = 0; round < qMin(results.rounds, largestRounds); ++round) {
        for (std::size_t i = 0; i < std::size(loads); ++i) {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {u"--load"_s, QString::fromLatin1(loads[i].key)});
            bool isNumber = false;
            double us = 0;
            if (process.waitForFinished(timeoutMs) && process.exitCode() == EXIT_SUCCESS)
                us = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
            const QList<QByteArray> messages = process.readAllStandardError().split('\n');
            for (const QByteArray &message : messages) {
                if (!message.isEmpty())
                    qWarning("%s", message.constData());
            }
            if (isNumber)
                ms[i] << us / 1000;
        }
    }
    for (std::size_t i = 0; i < std::size(loads); ++i) {
        if (!ms[i].isEmpty())
            results.load.append({QString::fromLatin1(loads[i].name), median(ms[i]), u"ms"_s});
    }
}
