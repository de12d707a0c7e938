#include "KPaletteReader.h"
#include "KThemeUtils.h"
#include "ThemeManager.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {
constexpr double textContrast = 4.5;
constexpr double shapeContrast = 3;
constexpr double highContrast = 7;

const QStringList themes{QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("highContrast")};
// Every state but disabled.
const QStringList readableStates{QStringLiteral("normal"), QStringLiteral("hovered"), QStringLiteral("pressed"),
                                 QStringLiteral("focused"), QStringLiteral("checked")};
const QString normal = QStringLiteral("normal");

QString sourceFile(const char *path)
{
    return QStringLiteral(UITOOLKIT_SOURCE_DIR "/") + QLatin1String(path);
}

QByteArray contents(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject pairFile()
{
    return QJsonDocument::fromJson(contents(sourceFile("Host/Palettes/pairs.json"))).object();
}

//! One text or a list of texts.
QStringList texts(const QJsonValue &value)
{
    if (value.isString())
        return {value.toString()};
    QStringList list;
    for (const QJsonValue &item : value.toArray())
        list.append(item.toString());
    return list;
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

//! Relative luminance as WCAG 2.2 defines it.
double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor over(const QColor &top, const QColor &below)
{
    const auto mix = [alpha = top.alphaF()](float upper, float lower) { return upper * alpha + lower * (1 - alpha); };
    return QColor::fromRgbF(mix(top.redF(), below.redF()), mix(top.greenF(), below.greenF()),
                            mix(top.blueF(), below.blueF()));
}

//! The colour of a set, or the literal colour that stands in its place.
QColor colorOf(const QString &name, const QString &state, AppThemeType theme)
{
    if (name.startsWith(QLatin1Char('#')))
        return QColor(name);
    return KThemeUtils::getColorSet(name.toUtf8(), theme).color(state);
}

QStringList quotedNames(const QString &file, const QRegularExpression &pattern)
{
    QStringList names;
    auto match = pattern.globalMatch(QString::fromUtf8(contents(file)));
    while (match.hasNext())
        names.append(match.next().captured(1));
    return names;
}
}

class tst_palette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void luminanceIsThatOfTheStandard();
    void everySetIsValid();
    void everyTokenIsThere();
    void everyNameInTheSourcesIsThere();
    void transparentShowsNothing();
    void everyEntryServes();
    void contrast_data();
    void contrast();
    void everySetIsJudged();
};

void tst_palette::luminanceIsThatOfTheStandard()
{
    QCOMPARE(::contrast(Qt::white, Qt::black), 21.0);
    QVERIFY(std::abs(::contrast(Qt::white, QColor(0x77, 0x77, 0x77)) - 4.48) < 0.005);
    QCOMPARE(over(QColor(0, 0, 0, 0), Qt::white), QColor(Qt::white));
}

void tst_palette::everySetIsValid()
{
    const QStringList names = ThemeManager::instance()->colorSetNames();
    QVERIFY(std::is_sorted(names.begin(), names.end()));
    for (const QString &name : names) {
        for (const QString &theme : themes) {
            const KColorSet set = KThemeUtils::getColorSet(name.toUtf8(), KThemeUtils::stringToThemeType(theme));
            QVERIFY2(set.isValid() && set.name() == name, qPrintable(name));
        }
    }
}

void tst_palette::everyTokenIsThere()
{
    const QStringList tokens = quotedNames(sourceFile("UIToolkit/Qt/Qml/Data/ColorTokens.def"),
                                           QRegularExpression(QStringLiteral("COLOR_TOKEN\\([^\"]*\"([^\"]+)\"\\)")));
    QCOMPARE(tokens.size(), 301);
    const QStringList names = ThemeManager::instance()->colorSetNames();
    for (const QString &token : tokens)
        QVERIFY2(names.contains(token), qPrintable(token));
}

void tst_palette::everyNameInTheSourcesIsThere()
{
    const QStringList names = ThemeManager::instance()->colorSetNames();
    // What a property that names a colour set is given, or what is asked for outright, to the end of the line ...
    const QRegularExpression use(
        QStringLiteral("(?:Colou?rSetName|[a-z]ColorName)\\s*[:=]([^\\n;]*)|getColorSet\\(([^\\n;]*)"));
    // ... and the names in it: a literal on its own, or one that looks like a name in a longer expression.
    const QRegularExpression name(
        QStringLiteral("^\\s*\\\\?\"([^\"\\\\]+)\\\\?\"|\"([A-Za-z][A-Za-z0-9]*(?:-[A-Za-z0-9]+)+)\\\\?\""));
    QSet<QString> used;
    QStringList unknown;
    QByteArray everything;
    for (const char *folder : {"UIToolkit", "Gallery"}) {
        QDirIterator files(sourceFile(folder),
                           {QStringLiteral("*.qml"), QStringLiteral("*.js"), QStringLiteral("*.h"),
                            QStringLiteral("*.cpp"), QStringLiteral("*.def")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const QByteArray text = contents(file);
            if (!file.endsWith(QLatin1String("ColorTokens.def")))
                everything += text;
            auto match = use.globalMatch(QString::fromUtf8(text));
            while (match.hasNext()) {
                const QRegularExpressionMatch expression = match.next();
                auto literals = name.globalMatch(expression.captured(1) + expression.captured(2));
                while (literals.hasNext()) {
                    const QRegularExpressionMatch literal = literals.next();
                    const QString found = literal.captured(1) + literal.captured(2);
                    used.insert(found);
                    if (!names.contains(found))
                        unknown.append(file + QLatin1String(": ") + found);
                }
            }
        }
    }
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(QLatin1Char('\n'))));
    QVERIFY(!used.isEmpty());

    QStringList unused;
    for (const QString &set : names) {
        if (!everything.contains('"' + set.toUtf8() + '"'))
            unused.append(set);
    }
    qInfo().noquote() << unused.size()
                      << "colour sets that no component uses by name yet:" << unused.join(QLatin1Char(' '));
}

void tst_palette::transparentShowsNothing()
{
    for (const QString &theme : themes) {
        const KColorSet set = KThemeUtils::getColorSet("transparent", KThemeUtils::stringToThemeType(theme));
        QVERIFY(set.isValid());
        for (int state = 0; state < KColorSet::StateCount; ++state)
            QCOMPARE(set.color(KColorSet::State(state)).alpha(), 0);
    }
}

void tst_palette::everyEntryServes()
{
    KPaletteReader reader;
    for (const char *file : {"sets", "light", "dark", "highcontrast"})
        QVERIFY(reader.addFile(QStringLiteral(":/korvu/palettes/%1.json").arg(QLatin1String(file))));
    const KPaletteTable table = reader.resolve();
    QCOMPARE(reader.warnings(), QStringList());
    QCOMPARE(reader.unused(), QStringList());

    // The compiled table and the files that an application's own palette is laid over are one.
    for (int theme = 0; theme < KPaletteThemeCount; ++theme) {
        const AppThemeType type = KThemeUtils::stringToThemeType(KPaletteReader::themeName(KPaletteTheme(theme)));
        QCOMPARE(table[std::size_t(theme)].size(), ThemeManager::instance()->colorSetNames().size());
        for (auto set = table[std::size_t(theme)].begin(); set != table[std::size_t(theme)].end(); ++set) {
            for (int state = 0; state < KColorSet::StateCount; ++state)
                QCOMPARE(KThemeUtils::getColorSet(set.key(), type).color(KColorSet::State(state)).rgba(),
                         set.value()[std::size_t(state)]);
        }
    }
}

void tst_palette::contrast_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString &theme : themes)
        QTest::newRow(qPrintable(theme)) << theme;
}

void tst_palette::contrast()
{
    QFETCH(QString, theme);
    const AppThemeType type = KThemeUtils::stringToThemeType(theme);
    const QJsonObject file = pairFile();
    const QJsonObject surfaces = file.value(QLatin1String("surfaces")).toObject();
    const QJsonArray pairs = file.value(QLatin1String("pairs")).toArray();
    // Of each pair and state the worst surface.
    QMap<QString, std::pair<double, QString>> failures;
    int checked = 0;

    for (const QJsonValue &value : pairs) {
        const QJsonObject pair = value.toObject();
        const QStringList onlyThemes = texts(pair.value(QLatin1String("themes")));
        if (!onlyThemes.isEmpty() && !onlyThemes.contains(theme))
            continue;
        const QJsonValue on = pair.value(QLatin1String("on"));
        const QStringList below = texts(on.isArray() ? on : surfaces.value(on.toString(QStringLiteral("page"))));
        QVERIFY2(!below.isEmpty(), qPrintable(on.toString()));
        const QStringList states =
            pair.contains(QLatin1String("states")) ? texts(pair.value(QLatin1String("states"))) : readableStates;
        const bool mix = pair.value(QLatin1String("mix")).toBool();
        // Backgrounds are alternatives, or lie one on the other.
        const QStringList backgrounds = texts(pair.value(QLatin1String("background")));
        QList<QStringList> stacks;
        if (backgrounds.isEmpty() || pair.value(QLatin1String("layered")).toBool())
            stacks.append(backgrounds);
        else
            for (const QString &background : backgrounds)
                stacks.append({background});

        for (const char *kind : {"text", "icon"}) {
            const double needed = theme == QLatin1String("highContrast") ? highContrast
                : qstrcmp(kind, "text") == 0                             ? textContrast
                                                                         : shapeContrast;
            const QStringList foregrounds = texts(pair.value(QLatin1String(kind)));
            for (const QString &foreground : foregrounds) {
                for (const QString &surface : below) {
                    const QColor ground = over(colorOf(surface, normal, type), Qt::black);
                    for (const QStringList &stack : std::as_const(stacks)) {
                        for (const QString &state : states) {
                            QColor background = ground;
                            for (const QString &layer : stack)
                                background = over(colorOf(layer, state, type), background);
                            for (const QString &own : mix ? states : QStringList{state}) {
                                const double ratio =
                                    ::contrast(over(colorOf(foreground, own, type), background), background);
                                ++checked;
                                const QString what = QStringLiteral("%1 (%2) on %3 (%4)")
                                                         .arg(foreground, own, stack.join(QLatin1Char('+')), state);
                                if (ratio < needed && ratio < failures.value(what, {needed, {}}).first)
                                    failures.insert(what, {ratio, surface});
                            }
                        }
                    }
                }
            }
        }
    }
    for (auto failure = failures.begin(); failure != failures.end(); ++failure)
        qInfo().noquote() << failure.key() << "over" << failure->second << "has only" << failure->first;
    QCOMPARE(failures.size(), 0);
    QVERIFY(checked > 3000);
}

void tst_palette::everySetIsJudged()
{
    const QJsonObject file = pairFile();
    const QStringList names = ThemeManager::instance()->colorSetNames();
    QSet<QString> judged;
    for (const QJsonValue &surfaces : file.value(QLatin1String("surfaces")).toObject()) {
        for (const QString &name : texts(surfaces))
            judged.insert(name);
    }
    for (const QJsonValue &value : file.value(QLatin1String("pairs")).toArray()) {
        for (const char *key : {"on", "background", "text", "icon"}) {
            const QJsonValue part = value.toObject().value(QLatin1String(key));
            if (qstrcmp(key, "on") != 0 || part.isArray()) {
                for (const QString &name : texts(part))
                    judged.insert(name);
            }
        }
    }
    for (const QString &name : std::as_const(judged))
        QVERIFY2(name.startsWith(QLatin1Char('#')) || names.contains(name), qPrintable(name));

    QJsonObject decoration = file.value(QLatin1String("decoration")).toObject();
    decoration.remove(QLatin1String("about"));
    QStringList wrong;
    for (const QString &name : names) {
        if (judged.contains(name) == decoration.contains(name))
            wrong.append(name);
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
    for (const QString &name : decoration.keys())
        QVERIFY2(names.contains(name), qPrintable(name));
}

QTEST_GUILESS_MAIN(tst_palette)
#include "tst_palette.moc"
