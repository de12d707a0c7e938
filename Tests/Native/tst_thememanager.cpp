#include "KThemeUtils.h"
#include "ThemeManager.h"

#include <QFile>
#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

class tst_thememanager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void switchesAtRunTime();
    void unknownThemeChangesNothing();
    void forcedThemesStay();
    void followsTheDesktop();
    void choosingAThemeEndsFollowing();

    void loadsAPalette();
    void baseColorRecolorsWhatIsBuiltOnIt();
    void statesLeftOut();
    void rolesBuildOnEachOther();
    void ownSets();
    void unusableFiles_data();
    void unusableFiles();
    void badEntries_data();
    void badEntries();
    void unusableFileKeepsTheLoadedPalette();

private:
    QString write(const QByteArray &text);
    static QColor color(const char *name, const char *state = "normal", AppThemeType theme = AppThemeType::Light);

    QTemporaryDir m_dir;
    ThemeManager *m_manager = ThemeManager::instance();
};

void tst_thememanager::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    QVERIFY(m_dir.isValid());
    m_manager->setTheme(QStringLiteral("light"));
    m_manager->resetPalette();
}

QString tst_thememanager::write(const QByteArray &text)
{
    QFile file(m_dir.filePath(QStringLiteral("palette.json")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QColor tst_thememanager::color(const char *name, const char *state, AppThemeType theme)
{
    return KThemeUtils::getColorSet(name, theme).color(QLatin1String(state));
}

void tst_thememanager::switchesAtRunTime()
{
    QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
    const QColor light = color("background-primary", "normal", AppThemeType::Global);
    QVERIFY(!m_manager->isDarkTheme() && !m_manager->isHighContrastTheme() && !KThemeUtils::isHighContrastEnabled());

    m_manager->setTheme(QStringLiteral("dark"));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_manager->property("globalTheme").toString(), QStringLiteral("dark"));
    QVERIFY(m_manager->isDarkTheme() && !m_manager->isHighContrastTheme());
    QVERIFY(color("background-primary", "normal", AppThemeType::Global).lightness() < light.lightness());

    QVERIFY(m_manager->setProperty("theme", QStringLiteral("highContrast")));
    QCOMPARE(changes.size(), 2);
    QVERIFY(m_manager->isDarkTheme() && m_manager->isHighContrastTheme() && KThemeUtils::isHighContrastEnabled());

    m_manager->setTheme(QStringLiteral("highContrast"));
    QCOMPARE(changes.size(), 2);
}

void tst_thememanager::unknownThemeChangesNothing()
{
    QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
    for (const char *theme : {"sepia", "", "global", "Dark"}) {
        QTest::ignoreMessage(QtWarningMsg, QByteArray("Unknown theme \"") + theme + "\"; the theme stays \"light\".");
        m_manager->setTheme(QLatin1String(theme));
        QCOMPARE(m_manager->theme(), QStringLiteral("light"));
    }
    QCOMPARE(changes.size(), 0);
}

void tst_thememanager::forcedThemesStay()
{
    const QColor forced = color("text-primary", "normal", AppThemeType::Dark);
    for (const char *theme : {"light", "dark", "highContrast"}) {
        m_manager->setTheme(QLatin1String(theme));
        QCOMPARE(color("text-primary", "normal", AppThemeType::Dark), forced);
        QCOMPARE(color("text-primary", "normal", AppThemeType::Global),
                 color("text-primary", "normal", KThemeUtils::stringToThemeType(QLatin1String(theme))));
    }
}

void tst_thememanager::followsTheDesktop()
{
    QSignalSpy following(m_manager, &ThemeManager::followSystemChanged);
    const QPalette dark(Qt::black);
    const QPalette light(Qt::white);
    QGuiApplication::setPalette(dark);
    QCOMPARE(m_manager->theme(), QStringLiteral("light"));

    m_manager->setFollowSystem(true);
    QCOMPARE(following.size(), 1);
    QCOMPARE(m_manager->theme(), QStringLiteral("dark"));
    QGuiApplication::setPalette(light);
    QTRY_COMPARE(m_manager->theme(), QStringLiteral("light"));
    QGuiApplication::setPalette(dark);
    QTRY_COMPARE(m_manager->theme(), QStringLiteral("dark"));

    m_manager->setFollowSystem(false);
    QCOMPARE(following.size(), 2);
    QGuiApplication::setPalette(light);
    QCoreApplication::processEvents();
    QCOMPARE(m_manager->theme(), QStringLiteral("dark"));
}

void tst_thememanager::choosingAThemeEndsFollowing()
{
    m_manager->setFollowSystem(true);
    QTest::ignoreMessage(QtWarningMsg, "Unknown theme \"none\"; the theme stays \"light\".");
    m_manager->setTheme(QStringLiteral("none"));
    QVERIFY(m_manager->followSystem());
    m_manager->setTheme(QStringLiteral("highContrast"));
    QVERIFY(!m_manager->followSystem());
    QCOMPARE(m_manager->theme(), QStringLiteral("highContrast"));
}

void tst_thememanager::loadsAPalette()
{
    const QColor builtIn = color("label-error-text");
    const QString file = write(R"({"themes": {"light": {"sets": {"label-error-text": "#010203"}}}})");
    QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
    QVERIFY(m_manager->loadPalette(file));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_manager->theme(), QStringLiteral("light"));
    QCOMPARE(color("label-error-text"), QColor(1, 2, 3));
    QVERIFY(color("label-error-text", "normal", AppThemeType::Dark) != QColor(1, 2, 3));

    // Another file takes the place of the first.
    QVERIFY(m_manager->loadPalette(QUrl::fromLocalFile(write(R"({"sets": {"text-primary": "#040506"}})")).toString()));
    QCOMPARE(color("label-error-text"), builtIn);
    QCOMPARE(color("text-primary", "hovered", AppThemeType::HighContrast), QColor(4, 5, 6));
    QVERIFY(m_manager->loadPalette(QStringLiteral("qrc:/korvu/palettes/light.json")));

    QCOMPARE(changes.size(), 3);
    m_manager->resetPalette();
    QCOMPARE(changes.size(), 4);
    m_manager->resetPalette();
    QCOMPARE(changes.size(), 4);
}

void tst_thememanager::baseColorRecolorsWhatIsBuiltOnIt()
{
    QVERIFY(m_manager->loadPalette(write(R"({"themes": {"light": {"scale": {"accent-60": "#7A1FA2"}}}})")));
    const QColor brand(0x7A, 0x1F, 0xA2);
    QCOMPARE(color("button-accent-fill-background"), brand);
    QCOMPARE(color("hyperlink-accent-text"), brand);
    QCOMPARE(color("textinput-border", "focused"), brand);
}

void tst_thememanager::statesLeftOut()
{
    QVERIFY(m_manager->loadPalette(write(R"({"sets": {
        "text-primary": {"normal": "#102030", "hovered": "#405060 @ 50%"},
        "text-secondary": {"as": "ink", "checked": "transparent"},
        "button-primary": {"as": "fill-accent", "hovered": "#FF0000"}}})")));
    QCOMPARE(color("text-primary", "focused"), QColor(0x10, 0x20, 0x30));
    QCOMPARE(color("text-primary", "checked"), QColor(0x10, 0x20, 0x30));
    QCOMPARE(color("text-primary", "hovered"), QColor(0x40, 0x50, 0x60, 128));
    QCOMPARE(color("text-primary", "pressed"), QColor(0x40, 0x50, 0x60, 128));
    QCOMPARE(color("text-primary", "disabled"), QColor(0x10, 0x20, 0x30, 102));
    QCOMPARE(color("text-secondary"), color("label-primary-text"));
    QCOMPARE(color("text-secondary", "checked").alpha(), 0);
    QCOMPARE(color("button-primary", "hovered"), QColor(Qt::red));
    QCOMPARE(color("button-primary", "pressed"), color("button-accent-fill-background", "pressed"));
}

void tst_thememanager::rolesBuildOnEachOther()
{
    const QColor ink = color("label-primary-text");
    // A role that builds on its own name means the one it replaces.
    QVERIFY(m_manager->loadPalette(write(R"({"roles": {
        "ink": {"as": "ink", "hovered": "#FF0000"}, "brand": {"as": "ink", "pressed": "#0000FF"}},
        "sets": {"text-secondary": "brand"}})")));
    QCOMPARE(color("label-primary-text"), ink);
    QCOMPARE(color("label-primary-text", "hovered"), QColor(Qt::red));
    QCOMPARE(color("text-secondary", "hovered"), QColor(Qt::red));
    QCOMPARE(color("text-secondary", "pressed"), QColor(Qt::blue));
}

void tst_thememanager::ownSets()
{
    QVERIFY(m_manager->loadPalette(write(R"({"families": {"my-card": {"background": "surface", "text": "ink"}}})")));
    QCOMPARE(color("my-card-text"), color("text-primary"));
    QVERIFY(m_manager->colorSetNames().contains(QStringLiteral("my-card-background")));
}

void tst_thememanager::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("empty") << QByteArray() << QByteArray("line 1: illegal value");
    QTest::newRow("half-written") << QByteArray("{\n\"sets\": {\n\"text-primary\": \"ink")
                                  << QByteArray("line 3: unterminated string");
    QTest::newRow("list") << QByteArray("[]") << QByteArray("a palette file must hold an object");
    QTest::newRow("missing") << QByteArray("missing") << QByteArray("there is no such palette file");
    QTest::newRow("folder") << QByteArray("folder") << QByteArray("the palette file cannot be read: ");
}

void tst_thememanager::unusableFiles()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, reason);
    const QString file = text == "missing" ? m_dir.filePath(QStringLiteral("missing.json"))
        : text == "folder"                 ? m_dir.path()
                                           : write(text);
    const QColor before = color("text-primary");
    QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
    const QString message = QRegularExpression::escape(file + QStringLiteral(": ") + QLatin1String(reason));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1Char('^') + message));
    QVERIFY(!m_manager->loadPalette(file));
    QCOMPARE(changes.size(), 0);
    QCOMPARE(color("text-primary"), before);
}

void tst_thememanager::badEntries_data()
{
    // Each row goes into a file beside one good entry.
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *entry, const char *message) {
        QTest::newRow(name) << QByteArray(entry) << QByteArray(message);
    };
    row("section of a wrong type", R"("roles": 3)", R"(roles: expected an object, found a number)");
    row("unknown section", R"("colours": {})", R"(colours: unknown section)");
    row("unknown theme", R"("themes": {"sepia": {}})", R"(themes.sepia: unknown theme)");
    row("theme of a wrong type", R"("themes": {"dark": []})", R"(themes.dark: expected an object, found a list)");
    row("set of a wrong type", R"("sets": {"text-secondary": true})",
        R"(sets.text-secondary: expected a text or an object of states, found true or false)");
    row("state of a wrong type", R"("sets": {"text-secondary": {"normal": 7}})",
        R"(sets.text-secondary.normal: expected a colour text, found a number)");
    row("unknown state", R"("sets": {"text-secondary": {"as": "ink-soft", "clicked": "white"}})",
        R"(sets.text-secondary.clicked: unknown state)");
    row("no colour at all", R"("sets": {"text-secondary": {"hovered": "#FFFFFF"}})",
        R"(sets.text-secondary: neither "normal" nor "as" is given)");
    row("bad colour text", R"("sets": {"text-secondary": "#12345"})",
        R"(sets.text-secondary: bad colour text "#12345")");
    row("bad opacity", R"("sets": {"text-secondary": "#123456 @ 140%"})",
        R"(sets.text-secondary: bad colour text "#123456 @ 140%")");
    row("unknown base colour", R"("sets": {"text-secondary": {"normal": "acent-60"}})",
        R"(sets.text-secondary.normal: unknown base colour "acent-60")");
    row("unknown role", R"("families": {"text": {"secondary": "inc"}})",
        R"(families.text.secondary: unknown role or base colour "inc")");
    row("bad family", R"("families": {"text": "ink"})", R"(families.text: expected an object, found a text)");
    row("bad base colour", R"("scale": {"accent-60": {"color": "blueish!"}})",
        R"(scale.accent-60: bad colour text "blueish!")");
    row("base colour without colour", R"("scale": {"accent-60": {"role": "accent"}})",
        R"(scale.accent-60: expected a colour text, found nothing)");
    row("base colour from another", R"("scale": {"accent-60": "white"})",
        R"(scale.accent-60: a base colour must be written as "#rrggbb")");
    row("roles in a circle", R"("roles": {"ink-soft": {"as": "ring"}, "ring": {"as": "ink-soft"}})",
        R"(roles.ink-soft: is defined by itself)");
    row("set in one theme only", R"("themes": {"dark": {"sets": {"my-set": "white"}}})",
        R"(my-set: the colour set has no colours in the theme "light")");
}

void tst_thememanager::badEntries()
{
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, message);
    const QColor before = color("text-secondary");
    const QColor accent = color("hyperlink-accent-text");
    const QByteArray good = entry.startsWith("\"sets\"") ? R"("families": {"label": {"error-text": "#010203"}})"
                                                         : R"("sets": {"label-error-text": "#010203"})";
    const QString file = write('{' + entry + ',' + good + '}');
    QTest::ignoreMessage(QtWarningMsg, file.toUtf8() + ": " + message);
    QVERIFY(m_manager->loadPalette(file));
    QCOMPARE(color("label-error-text"), QColor(1, 2, 3));
    QCOMPARE(color("text-secondary"), before);
    QCOMPARE(color("hyperlink-accent-text"), accent);
}

void tst_thememanager::unusableFileKeepsTheLoadedPalette()
{
    QVERIFY(m_manager->loadPalette(write(R"({"sets": {"text-primary": "#040506"}})")));
    const QString missing = m_dir.filePath(QStringLiteral("missing.json"));
    QTest::ignoreMessage(QtWarningMsg, missing.toUtf8() + ": there is no such palette file");
    QVERIFY(!m_manager->loadPalette(missing));
    QCOMPARE(color("text-primary"), QColor(4, 5, 6));
}

QTEST_MAIN(tst_thememanager)
#include "tst_thememanager.moc"
