#include "KPaletteReader.h"
#include "KThemeUtils.h"
#include "NativeTest.h"
#include "Sources.h"
#include "ThemeManager.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double textContrast = 4.5;
constexpr double shapeContrast = 3;
constexpr double highContrast = 7;

const QStringList themes{u"light"_s, u"dark"_s, u"highContrast"_s};
// Every state but disabled.
const QStringList readableStates{u"normal"_s, u"hovered"_s, u"pressed"_s, u"focused"_s, u"checked"_s};

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
    if (name.startsWith(u'#'))
        return QColor(name);
    return KThemeUtils::getColorSet(name.toUtf8(), theme).color(state);
}

} // namespace

class tst_palette : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void everySetIsValid()
    {
        QVERIFY(std::is_sorted(m_names.begin(), m_names.end()) && m_names.contains(u"transparent"_s));
        for (const QString &name : m_names) {
            for (const QString &theme : themes) {
                const KColorSet set = KThemeUtils::getColorSet(name.toUtf8(), KThemeUtils::stringToThemeType(theme));
                QVERIFY2(set.isValid() && set.name() == name, qPrintable(name));
                for (int state = 0; name == "transparent"_L1 && state < KColorSet::StateCount; ++state)
                    QCOMPARE(set.color(KColorSet::State(state)).alpha(), 0);
            }
        }
    }

    void everyTokenIsThere()
    {
        const QRegularExpression pattern(u"COLOR_TOKEN\\([^\"]*\"([^\"]+)\"\\)"_s);
        const QStringList tokens =
            Sources::captures(pattern, Sources::text(Sources::path("UIToolkit/Qt/Qml/Data/ColorTokens.def")));
        QCOMPARE(tokens.size(), 301);
        for (const QString &token : tokens)
            QVERIFY2(m_names.contains(token), qPrintable(token));
    }

    void everyNameInTheSourcesIsThere()
    {
        // What a property that names a colour set is given, or what is asked for outright, to the end of the line ...
        const QRegularExpression use(u"(?:Colou?rSetName|[a-z]ColorName)\\s*[:=]([^\\n;]*)|getColorSet\\(([^\\n;]*)"_s);
        // ... and the names in it: a literal on its own, or one that looks like a name in a longer expression.
        const QRegularExpression name(
            u"^\\s*\\\\?\"([^\"\\\\]+)\\\\?\"|\"([A-Za-z][A-Za-z0-9]*(?:-[A-Za-z0-9]+)+)\\\\?\""_s);
        QStringList unknown;
        int count = 0;
        Sources::visitAll([&](const QString &file, const QString &text) {
            for (const QString &expression : Sources::captures(use, text)) {
                for (const QString &found : Sources::captures(name, expression)) {
                    ++count;
                    if (!m_names.contains(found))
                        unknown.append(file + ": "_L1 + found);
                }
            }
        });
        QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(u'\n')));
        QVERIFY(count > 0);
    }

    void everyEntryServes()
    {
        KPaletteReader reader;
        for (const char *file : {"sets", "light", "dark", "highcontrast"})
            QVERIFY(reader.addFile(u":/korvu/palettes/%1.json"_s.arg(QLatin1String(file))));
        const KPaletteTable table = reader.resolve();
        QCOMPARE(reader.warnings(), QStringList());
        QCOMPARE(reader.unused(), QStringList());

        // The compiled table and the files that an application's own palette is laid over are one.
        for (int theme = 0; theme < KPaletteThemeCount; ++theme) {
            const AppThemeType type = KThemeUtils::stringToThemeType(KPaletteReader::themeName(KPaletteTheme(theme)));
            QCOMPARE(table[std::size_t(theme)].size(), m_names.size());
            for (auto set = table[std::size_t(theme)].begin(); set != table[std::size_t(theme)].end(); ++set) {
                for (int state = 0; state < KColorSet::StateCount; ++state)
                    QCOMPARE(KThemeUtils::getColorSet(set.key(), type).color(KColorSet::State(state)).rgba(),
                             set.value()[std::size_t(state)]);
            }
        }
    }

    void contrast_data()
    {
        const Table<QString> row{"theme"};
        for (const QString &theme : themes)
            row(theme, theme);
    }

    void contrast()
    {
        QFETCH(QString, theme);
        const AppThemeType type = KThemeUtils::stringToThemeType(theme);
        const QJsonObject surfaces = m_pairFile["surfaces"_L1].toObject();
        const QJsonArray pairs = m_pairFile["pairs"_L1].toArray();
        // Of each pair and state the worst surface.
        QMap<QString, std::pair<double, QString>> failures;
        int checked = 0;

        for (const QJsonValue &value : pairs) {
            const QJsonObject pair = value.toObject();
            const QStringList onlyThemes = texts(pair["themes"_L1]);
            if (!onlyThemes.isEmpty() && !onlyThemes.contains(theme))
                continue;
            const QJsonValue on = pair["on"_L1];
            const QStringList below = texts(on.isArray() ? on : surfaces.value(on.toString(u"page"_s)));
            QVERIFY2(!below.isEmpty(), qPrintable(on.toString()));
            const QStringList states = pair.contains("states"_L1) ? texts(pair["states"_L1]) : readableStates;
            const bool mix = pair["mix"_L1].toBool();
            // Backgrounds are alternatives, or lie one on the other.
            const QStringList backgrounds = texts(pair["background"_L1]);
            QList<QStringList> stacks;
            if (backgrounds.isEmpty() || pair["layered"_L1].toBool())
                stacks.append(backgrounds);
            else
                for (const QString &background : backgrounds)
                    stacks.append({background});

            for (const char *kind : {"text", "icon"}) {
                const double needed = theme == "highContrast"_L1 ? highContrast
                    : qstrcmp(kind, "text") == 0                 ? textContrast
                                                                 : shapeContrast;
                const QStringList foregrounds = texts(pair.value(QLatin1String(kind)));
                for (const QString &foreground : foregrounds) {
                    for (const QString &surface : below) {
                        for (const QStringList &stack : std::as_const(stacks)) {
                            for (const QString &state : states) {
                                QColor background = over(colorOf(surface, u"normal"_s, type), Qt::black);
                                for (const QString &layer : stack)
                                    background = over(colorOf(layer, state, type), background);
                                for (const QString &own : mix ? states : QStringList{state}) {
                                    const double ratio =
                                        ::contrast(over(colorOf(foreground, own, type), background), background);
                                    ++checked;
                                    const QString what =
                                        u"%1 (%2) on %3 (%4)"_s.arg(foreground, own, stack.join(u'+'), state);
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

    void everySetIsJudged()
    {
        QStringList judged;
        for (const QJsonValue &surfaces : m_pairFile["surfaces"_L1].toObject())
            judged += texts(surfaces);
        for (const QJsonValue &value : m_pairFile["pairs"_L1].toArray()) {
            for (const char *key : {"on", "background", "text", "icon"}) {
                const QJsonValue part = value.toObject().value(QLatin1String(key));
                if (qstrcmp(key, "on") != 0 || part.isArray()) // otherwise the name of some surfaces
                    judged += texts(part);
            }
        }
        for (const QString &name : std::as_const(judged))
            QVERIFY2(name.startsWith(u'#') || m_names.contains(name), qPrintable(name));

        QJsonObject decoration = m_pairFile["decoration"_L1].toObject();
        decoration.remove("about"_L1);
        QStringList wrong;
        for (const QString &name : m_names) {
            if (judged.contains(name) == decoration.contains(name))
                wrong.append(name);
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
        for (const QString &name : decoration.keys())
            QVERIFY2(m_names.contains(name), qPrintable(name));
    }

private:
    const QStringList m_names = ThemeManager::instance()->colorSetNames();
    const QJsonObject m_pairFile =
        QJsonDocument::fromJson(Sources::text(Sources::path("Host/Palettes/pairs.json")).toUtf8()).object();
};

QTEST_GUILESS_MAIN(tst_palette)
#include "tst_palette.moc"
