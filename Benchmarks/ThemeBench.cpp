#include "ThemeBench.h"

#include "CpuClock.h"
#include "InstanceBench.h"
#include "Statistics.h"

#include <KThemeUtils.h>
#include <ThemeManager.h>

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int items = 1000;
constexpr int quickItems = 200;
// There and back, so that every pass begins alike.
constexpr int switches = 2;

constexpr int calls = 20000;
const QString colorSetName = u"text-primary"_s;

struct Crowd
{
    QString name;
    QByteArray document; // empty: nothing is alive
    QString witness;     // the property that shows whether an item follows the theme
    bool isMaterial = false;
};

const QByteArray toolkitImport = "import UIToolkitQml 1.0\n";

std::array<Crowd, 8> crowds()
{
    return {{
        {u"nothing alive (whole switch)"_s, {}, {}},
        {u"KRectangle"_s, toolkitImport + "KRectangle { width: 80; height: 24 }", u"color"_s},
        {u"KText"_s, toolkitImport + "KText { text: \"Text\" }", u"color"_s},
        {u"KSvgIcon"_s, toolkitImport + "KSvgIcon { svgName: \"settings-regular\"; svgColorSetName: \"text-primary\" }",
         u"source"_s},
        {u"UTColorSetData"_s, "import UIToolkitBench\nColorSetUser { width: 80; height: 24 }", u"color"_s},
        {u"UTPillButton"_s, toolkitImport + "UTPillButton { text: \"Button\" }", u"contentItem.color"_s},
        {u"UTRoundButton"_s, toolkitImport + "UTRoundButton { buttonIcon: \"settings-bold\" }", u"background.color"_s},
        {u"Material Button"_s, "import QtQuick.Controls.Material\nButton { text: \"Button\" }", u"contentItem.color"_s,
         true},
    }};
}

void setToolkitTheme(bool dark)
{
    ThemeManager::instance()->setTheme(dark ? u"dark"_s : u"light"_s);
}

// Material's theme is a property attached to the root and handed down from there.
std::function<void(bool)> materialThemeSetter(InstanceStage &stage)
{
    QQmlComponent component(stage.engine());
    component.setData("import QtQuick\nimport QtQuick.Controls.Material\n"
                      "QtObject {\n"
                      "    function setDark(item: Item, dark: bool) {\n"
                      "        item.Material.theme = dark ? Material.Dark : Material.Light\n"
                      "    }\n"
                      "}\n",
                      QUrl(u"qrc:/uitoolkit_bench/MaterialTheme.qml"_s));
    std::shared_ptr<QObject> setter(component.create());
    if (!setter)
        qFatal("%s", qPrintable(component.errorString()));
    return [setter, root = stage.root()](bool dark) {
        QMetaObject::invokeMethod(setter.get(), "setDark", Q_ARG(QQuickItem *, root), Q_ARG(bool, dark));
    };
}

void measureSwitches(InstanceStage &stage, Results &results)
{
    struct Entry
    {
        Crowd crowd;
        std::unique_ptr<QQmlComponent> component;
        QList<double> us; // of one switch
        bool followsTheme = true;
    };
    std::vector<Entry> entries;
    for (const Crowd &crowd : crowds()) {
        auto component = std::make_unique<QQmlComponent>(stage.engine());
        if (!crowd.document.isEmpty()) {
            component->setData("import QtQuick\n" + crowd.document, QUrl(u"qrc:/uitoolkit_bench/Crowd.qml"_s));
            // A component that does not exist yet is left out.
            if (component->isError())
                continue;
        }
        entries.push_back({crowd, std::move(component), {}, true});
    }
    const std::function<void(bool)> setMaterialTheme = materialThemeSetter(stage);

    const int alive = results.quick ? quickItems : items;
    std::mt19937 random(1);
    const int rounds = qMin(results.rounds, 5);
    // The first round only warms up: pictures in the other theme's colours are drawn and cached.
    for (int round = -1; round < rounds; ++round) {
        std::shuffle(entries.begin(), entries.end(), random);
        for (Entry &entry : entries) {
            stage.clear();
            if (!entry.crowd.document.isEmpty())
                stage.create(entry.component.get(), alive);
            const std::function<void(bool)> setTheme = entry.crowd.isMaterial ? setMaterialTheme : setToolkitTheme;
            if (round < 0) {
                const QVariant light = QQmlProperty::read(stage.anyInstance(), entry.crowd.witness);
                setTheme(true);
                stage.settle();
                entry.followsTheme = entry.crowd.document.isEmpty()
                    || light != QQmlProperty::read(stage.anyInstance(), entry.crowd.witness);
                setTheme(false);
                stage.settle();
                continue;
            }
            stage.engine()->collectGarbage();
            CpuClock clock;
            for (int i = 0; i < switches; ++i) {
                setTheme(i % 2 == 0);
                stage.settle();
            }
            entry.us << clock.lap() / switches;
        }
    }
    stage.clear();

    for (const Crowd &crowd : crowds()) {
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [&crowd](const Entry &entry) { return entry.crowd.name == crowd.name; });
        if (entry == entries.end())
            continue;
        if (!entry->followsTheme) {
            results.failed.append({crowd.name, u"its %1 stays as it was when the theme changes"_s.arg(crowd.witness)});
            continue;
        }
        const double us = median(entry->us);
        if (crowd.document.isEmpty())
            results.theme.append({crowd.name, us, u"us"_s});
        else
            results.theme.append({u"%1 x %2"_s.arg(alive).arg(crowd.name), us / alive, u"us an item"_s});
    }
}

void measureCalls(InstanceStage &stage, Results &results)
{
    QQmlComponent component(stage.engine());
    component.setData("import UIToolkitBench\nColorSetReader {}", QUrl(u"qrc:/uitoolkit_bench/Reader.qml"_s));
    const std::unique_ptr<QObject> reader(component.create());
    if (!reader)
        qFatal("%s", qPrintable(component.errorString()));
    reader->setProperty("name", colorSetName);

    const int times = results.quick ? calls / 10 : calls;
    const QByteArray name = colorSetName.toUtf8();
    QList<double> fromQml, fromCpp;
    for (int round = -1; round < results.rounds; ++round) {
        stage.engine()->collectGarbage();
        CpuClock clock;
        QMetaObject::invokeMethod(reader.get(), "read", Q_ARG(int, times));
        const double read = clock.lap();
        QMetaObject::invokeMethod(reader.get(), "idle", Q_ARG(int, times));
        const double idle = clock.lap();
        for (int i = 0; i < times; ++i) {
            // Through volatile, or the compiler might leave the call out.
            volatile bool valid = KThemeUtils::getColorSet(name, AppThemeType::Global).isValid();
            Q_UNUSED(valid)
        }
        const double native = clock.lap();
        if (round >= 0) {
            fromQml << qMax(0.0, read - idle) / times;
            fromCpp << native / times;
        }
    }
    results.calls.append({u"App.getColorSet from QML"_s, median(fromQml), u"us a call"_s});
    results.calls.append({u"KThemeUtils::getColorSet from C++"_s, median(fromCpp), u"us a call"_s});
}

} // namespace

void ThemeBench::run(InstanceStage &stage, Results &results)
{
    const QString theme = ThemeManager::instance()->theme();
    setToolkitTheme(false);
    measureSwitches(stage, results);
    ThemeManager::instance()->setTheme(theme);
    measureCalls(stage, results);
}
