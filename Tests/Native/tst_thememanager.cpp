#include "KThemeUtils.h"
#include "NativeTest.h"
#include "ThemeManager.h"

#include <QFile>
#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

class tst_thememanager : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        NativeTest::init();
        QVERIFY(m_dir.isValid());
        m_manager->setTheme(u"light"_s);
        m_manager->resetPalette();
    }

    void switchesAtRunTime()
    {
        QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
        const QColor light = color("text-primary", "normal", AppThemeType::Global);
        const QColor forced = color("text-primary", "normal", AppThemeType::Dark);
        for (const auto &[theme, changeCount, isDark, isHighContrast] : {std::tuple(u"light"_s, 0, false, false),
                                                                         {u"dark"_s, 1, true, false},
                                                                         {u"highContrast"_s, 2, true, true},
                                                                         {u"highContrast"_s, 2, true, true}}) {
            QVERIFY(m_manager->setProperty("theme", theme));
            QCOMPARE(changes.size(), changeCount);
            QCOMPARE(m_manager->property("globalTheme").toString(), theme);
            QCOMPARE(m_manager->isDarkTheme(), isDark);
            QCOMPARE(m_manager->isHighContrastTheme(), isHighContrast);
            QCOMPARE(KThemeUtils::isHighContrastEnabled(), isHighContrast);
            const QColor now = color("text-primary", "normal", AppThemeType::Global);
            QCOMPARE(now.lightness() > light.lightness(), isDark);
            QCOMPARE(now, color("text-primary", "normal", KThemeUtils::stringToThemeType(theme)));
            QCOMPARE(color("text-primary", "normal", AppThemeType::Dark), forced);
        }
    }

    void followsTheDesktop()
    {
        QSignalSpy following(m_manager, &ThemeManager::followSystemChanged);
        const QPalette dark(Qt::black);
        const QPalette light(Qt::white);
        QGuiApplication::setPalette(dark);
        QCOMPARE(m_manager->theme(), u"light"_s);

        m_manager->setFollowSystem(true);
        QCOMPARE(following.size(), 1);
        QCOMPARE(m_manager->theme(), u"dark"_s);
        QGuiApplication::setPalette(light);
        QTRY_COMPARE(m_manager->theme(), u"light"_s);
        QGuiApplication::setPalette(dark);
        QTRY_COMPARE(m_manager->theme(), u"dark"_s);

        m_manager->setFollowSystem(false);
        QCOMPARE(following.size(), 2);
        QGuiApplication::setPalette(light);
        QCoreApplication::processEvents();
        QCOMPARE(m_manager->theme(), u"dark"_s);
    }

    void choosingAThemeEndsFollowing()
    {
        m_manager->setFollowSystem(true);
        const QByteArray before = m_manager->theme().toLatin1();
        QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
        for (const QByteArray unknown : {"sepia", "", "global", "Dark"}) {
            QTest::ignoreMessage(QtWarningMsg,
                                 "Unknown theme \"" + unknown + "\"; the theme stays \"" + before + "\".");
            m_manager->setTheme(QString::fromLatin1(unknown));
        }
        QVERIFY(m_manager->followSystem());
        QCOMPARE(changes.size(), 0);
        m_manager->setTheme(u"highContrast"_s);
        QVERIFY(!m_manager->followSystem());
        QCOMPARE(m_manager->theme(), u"highContrast"_s);
    }

    void loadsAPalette()
    {
        const QColor builtIn = color("label-error-text");
        const QString file = write("{'themes': {'light': {'sets': {'label-error-text': '#010203'}}}}");
        QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
        QVERIFY(m_manager->loadPalette(file));
        QCOMPARE(changes.size(), 1);
        QCOMPARE(m_manager->theme(), u"light"_s);
        QCOMPARE(color("label-error-text"), QColor(1, 2, 3));
        QVERIFY(color("label-error-text", "normal", AppThemeType::Dark) != QColor(1, 2, 3));

        // Another file takes the place of the first.
        QVERIFY(m_manager->loadPalette(QUrl::fromLocalFile(write("{'sets': {'text-primary': '#040506'}}")).toString()));
        QCOMPARE(color("label-error-text"), builtIn);
        QCOMPARE(color("text-primary", "hovered", AppThemeType::HighContrast), QColor(4, 5, 6));
        QVERIFY(m_manager->loadPalette(u"qrc:/korvu/palettes/light.json"_s));

        QCOMPARE(changes.size(), 3);
        m_manager->resetPalette();
        QCOMPARE(changes.size(), 4);
        m_manager->resetPalette();
        QCOMPARE(changes.size(), 4);
    }

    void palettes_data()
    {
        const Table<QByteArray, QString> row{"palette", "colors"};
        row("a base colour recolours what is built on it", "{'themes': {'light': {'scale': {'accent-60': '#7A1FA2'}}}}",
            "button-accent-fill-background/normal=#7A1FA2 hyperlink-accent-text/normal=#7A1FA2 "
            "textinput-border/focused=#7A1FA2");
        row("states left out",
            "{'sets': {'text-primary': {'normal': '#102030', 'hovered': '#405060 @ 50%'},"
            " 'text-secondary': {'as': 'ink', 'checked': 'transparent'},"
            " 'button-primary': {'as': 'fill-accent', 'hovered': '#FF0000'}}}",
            "text-primary/focused=#102030 text-primary/checked=#102030 text-primary/hovered=#80405060 "
            "text-primary/pressed=#80405060 text-primary/disabled=#66102030 text-secondary/normal=ink "
            "text-secondary/checked=#00000000 button-primary/hovered=#FF0000 "
            "button-primary/pressed=button-accent-fill-background/pressed");
        row("a role that builds on its own name means the one it replaces",
            "{'roles': {'ink': {'as': 'ink', 'hovered': '#FF0000'}, 'brand': {'as': 'ink', 'pressed': '#0000FF'}},"
            " 'sets': {'text-secondary': 'brand'}}",
            "label-primary-text/normal=ink label-primary-text/hovered=#FF0000 text-secondary/hovered=#FF0000 "
            "text-secondary/pressed=#0000FF");
        row("sets of its own", "{'families': {'my-card': {'text': 'ink', 'icon': 'ink-soft'}}}",
            "my-card-text/normal=ink my-card-icon/normal=text-secondary/normal");
    }

    void palettes()
    {
        QFETCH(QByteArray, palette);
        QFETCH(QString, colors);
        const QColor ink = color("label-primary-text");
        const auto colorAt = [&ink](const QString &place) { // "set/state", a colour, or the ink before
            if (place.startsWith(u'#'))
                return QColor(place);
            const QByteArray set = place.section(u'/', 0, 0).toLatin1();
            return set == "ink" ? ink : color(set, place.section(u'/', 1).toLatin1());
        };
        QVERIFY(load(palette));
        for (const QString &pair : colors.split(u' ')) {
            QVERIFY(m_manager->colorSetNames().contains(pair.section(u'/', 0, 0)));
            QVERIFY2(colorAt(pair.section(u'=', 0, 0)) == colorAt(pair.section(u'=', 1)), qPrintable(pair));
        }
    }

    void unusableFiles_data()
    {
        const Table<QByteArray, QByteArray> row{"text", "reason"};
        row("empty", "", "line 1: illegal value");
        row("half-written", "{\n'sets': {\n'text-primary': 'ink", "line 3: unterminated string");
        row("list", "[]", "a palette file must hold an object");
        row("missing", "missing", "there is no such palette file");
        row("folder", "folder", "the palette file cannot be read: ");
    }

    void unusableFiles()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, reason);
        QVERIFY(load("{'sets': {'text-primary': '#040506'}}"));
        const QString file = text == "missing" ? m_dir.filePath(u"missing.json"_s)
            : text == "folder"                 ? m_dir.path()
                                               : write(text);
        QSignalSpy changes(m_manager, &ThemeManager::globalThemeChanged);
        const QString message = QRegularExpression::escape(file + u": "_s + QLatin1String(reason));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u'^' + message));
        QVERIFY(!m_manager->loadPalette(file));
        QCOMPARE(changes.size(), 0);
        QCOMPARE(color("text-primary"), QColor(4, 5, 6)); // the palette loaded before stays
    }

    void badEntries_data()
    {
        const Table<QByteArray, QByteArray> row{"entry", "message"};
        // Each goes into a file beside one good entry.
        const auto bad = [&row](const char *entry, const char *message) { row(message, entry, message); };
        bad("'roles': 3", "roles: expected an object, found a number");
        bad("'colours': {}", "colours: unknown section");
        bad("'themes': {'sepia': {}}", "themes.sepia: unknown theme");
        bad("'themes': {'dark': []}", "themes.dark: expected an object, found a list");
        bad("'sets': {'text-secondary': true}",
            "sets.text-secondary: expected a text or an object of states, found true or false");
        bad("'sets': {'text-secondary': {'normal': 7}}",
            "sets.text-secondary.normal: expected a colour text, found a number");
        bad("'sets': {'text-secondary': {'as': 'ink-soft', 'clicked': 'white'}}",
            "sets.text-secondary.clicked: unknown state");
        bad("'sets': {'text-secondary': {'hovered': '#FFFFFF'}}",
            "sets.text-secondary: neither 'normal' nor 'as' is given");
        bad("'sets': {'text-secondary': '#12345'}", "sets.text-secondary: bad colour text '#12345'");
        bad("'sets': {'text-secondary': '#123456 @ 140%'}", "sets.text-secondary: bad colour text '#123456 @ 140%'");
        bad("'sets': {'text-secondary': {'normal': 'acent-60'}}",
            "sets.text-secondary.normal: unknown base colour 'acent-60'");
        bad("'families': {'text': {'secondary': 'inc'}}", "families.text.secondary: unknown role or base colour 'inc'");
        bad("'families': {'text': 'ink'}", "families.text: expected an object, found a text");
        bad("'scale': {'accent-60': {'color': 'blueish!'}}", "scale.accent-60: bad colour text 'blueish!'");
        bad("'scale': {'accent-60': {'role': 'accent'}}", "scale.accent-60: expected a colour text, found nothing");
        bad("'scale': {'accent-60': 'white'}", "scale.accent-60: a base colour must be written as '#rrggbb'");
        bad("'roles': {'ink-soft': {'as': 'ring'}, 'ring': {'as': 'ink-soft'}}",
            "roles.ink-soft: is defined by itself");
        bad("'themes': {'dark': {'sets': {'my-set': 'white'}}}",
            "my-set: the colour set has no colours in the theme 'light'");
    }

    void badEntries()
    {
        QFETCH(QByteArray, entry);
        QFETCH(QByteArray, message);
        const QColor before = color("text-secondary");
        const QColor accent = color("hyperlink-accent-text");
        const QByteArray good = entry.startsWith("'sets'") ? "'families': {'label': {'error-text': '#010203'}}"
                                                           : "'sets': {'label-error-text': '#010203'}";
        const QString file = write('{' + entry + ',' + good + '}');
        QTest::ignoreMessage(QtWarningMsg, file.toUtf8() + ": " + QByteArray(message).replace('\'', '"'));
        QVERIFY(m_manager->loadPalette(file));
        QCOMPARE(color("label-error-text"), QColor(1, 2, 3));
        QCOMPARE(color("text-secondary"), before);
        QCOMPARE(color("hyperlink-accent-text"), accent);
    }

private:
    //! Writes \a text, with single quotes for double ones, into a file and tells its name.
    QString write(QByteArray text)
    {
        text.replace('\'', '"');
        QFile file(m_dir.filePath(u"palette.json"_s));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    bool load(const QByteArray &text) { return m_manager->loadPalette(write(text)); }

    static QColor color(const QByteArray &name, const QByteArray &state = "normal",
                        AppThemeType theme = AppThemeType::Light)
    {
        return KThemeUtils::getColorSet(name, theme).color(QString::fromLatin1(state));
    }

    QTemporaryDir m_dir;
    ThemeManager *m_manager = ThemeManager::instance();
};

QTEST_MAIN(tst_thememanager)
#include "tst_thememanager.moc"
