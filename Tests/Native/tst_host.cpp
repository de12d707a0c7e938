#include "App.h"
#include "EmojiImageProvider.h"
#include "KFont.h"
#include "KorvuHost.h"
#include "NativeTest.h"
#include "ThemeManager.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQuickImageProvider>
#include <QSet>

using namespace Qt::StringLiterals;

//! Counts the hues of an image, in twelfths of the circle.
static int hueCount(const QImage &image)
{
    QSet<int> hues;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 128 && color.saturation() > 64)
                hues.insert(color.hue() / 30);
        }
    }
    return int(hues.size());
}

class tst_Host : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void installsOnce()
    {
        QQmlEngine engine;
        KorvuHost::install(&engine);
        QQmlImageProviderBase *svg = engine.imageProvider(u"svg"_s);
        QQmlImageProviderBase *emoji = engine.imageProvider(u"emoji"_s);
        QVERIFY(svg && emoji);
        KorvuHost::install(&engine);
        QCOMPARE(engine.imageProvider(u"svg"_s), svg);
        QCOMPARE(engine.imageProvider(u"emoji"_s), emoji);
        KorvuHost::install(nullptr);
        QCOMPARE(engine.rootContext()->contextProperty(u"themeMode"_s), u"global"_s);
        engine.rootContext()->setContextProperty(u"themeMode"_s, u"dark"_s);
        KorvuHost::install(&engine);
        QCOMPARE(engine.rootContext()->contextProperty(u"themeMode"_s), u"dark"_s);
    }

    void moduleInSeveralEngines()
    {
        const QString name = ThemeManager::instance()->colorSetNames().constFirst();
        const QColor expected = App::instance()->getColorSet(name, u"dark"_s).normal();
        const App *app = App::instance();
        for (int run = 0; run < 3; ++run) {
            QQmlEngine engine;
            engine.addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
            const auto object = create(engine, R"(
            import QtQuick
            import Korvu 1.0
            QtObject {
                property string colorSetName
                property string themeType: "dark"
                property kColorSet colorSet: ThemeManager.globalTheme, App.getColorSet(colorSetName, themeType)
                property kColorSet none
                property color normal: colorSet.normal
                property color byName: colorSet.color("normal")
                property bool valid: colorSet.isValid && !none.isValid
                property var objects: [App, Utils, UIToolKitUtils, ThemeManager]
                property Connections connections: Connections {
                    target: App
                    function onFocusWindowChanged(focusWindow) { }
                }
                property var keySequence: KKeySequence.Unknown
                property string menuKey: Utils.getKeySequence(KKeySequence.ContextMenu)
                property AccessibleMonitor monitor: AccessibleMonitor { watching: false }
                signal keyPressed(KKeyEvent event)
            }
        )",
                                       {{u"colorSetName"_s, name}});
            QCOMPARE(object->property("keySequence").toInt(), 0);
            QCOMPARE(object->property("menuKey").toString(), u"Shift+F10"_s);
            QCOMPARE(object->property("normal").value<QColor>(), expected);
            QCOMPARE(object->property("byName").value<QColor>(), expected);
            QVERIFY(object->property("valid").toBool());
            QVERIFY(engine.imageProvider(u"svg"_s));
            QCOMPARE(object->property("objects").toList().constFirst().value<QObject *>(), app);

            // A switch of the theme reaches the bindings, and those with a theme of their own keep it.
            object->setProperty("themeType", u"global"_s);
            ThemeManager::instance()->setTheme(u"highContrast"_s);
            QCOMPARE(object->property("normal").value<QColor>(), App::instance()->getColorSet(name).normal());
            ThemeManager::instance()->setTheme(u"light"_s);
            QCOMPARE(object->property("normal").value<QColor>(),
                     App::instance()->getColorSet(name, u"light"_s).normal());
        }
        QCOMPARE(App::instance(), app);
    }

    void fontTokens()
    {
        // The numbers that controls use, as sizes of controls go down: 3, 4, 7 and for text buttons 5, 6.
        const std::pair<int, int> sizes[] = {{3, 16}, {4, 14}, {7, 12}, {5, 16}, {6, 14}};
        for (const auto &[token, size] : sizes)
            QCOMPARE(KFont(KFont::Token(token)).pixelSize(), size);
        QVERIFY(KFont(KFont::Token(5)).underline());
        QCOMPARE(KFont(KFont::CodeBlocks).family(), u"Consolas"_s);
        QVERIFY(KFont(KFont::BodySecondaryItalic).italic());

        QCOMPARE(KFont(KFont::BodyPrimary).weight(), QFont::Normal);
        QCOMPARE(KFont(KFont::BodyPrimary, true), KFont(KFont::BodyPrimaryBold));
        QCOMPARE(KFont(KFont::BodyPrimary, false), KFont(KFont::BodyPrimary));

        for (const int bad : {-1, KFont::Emoji + 1, 4711}) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(u"KFont: there is no font token %1"_s.arg(bad)));
            QCOMPARE(KFont(KFont::Token(bad)), KFont(KFont::BodySecondary));
        }
    }

    void fontFamilies()
    {
        KFont::installSubstitutions();
        KFont::installSubstitutions();
        if (QFontDatabase::hasFamily(u"Inter"_s) && !QFontDatabase::hasFamily(u"Segoe UI"_s))
            QCOMPARE(QFontInfo(KFont(KFont::BodyPrimary)).family(), u"Inter"_s);
        QVERIFY(QFontInfo(KFont(KFont::CodeBlocks)).fixedPitch());
        QVERIFY(QFont::substitutes(u"Segoe UI"_s).size() <= 1);
    }

    void emojiImages()
    {
        if (!QFontDatabase::hasFamily(u"Noto Color Emoji"_s))
            QSKIP("no colour emoji font on this system");
        KFont::installSubstitutions();
        EmojiImageProvider provider;
        QSize size;
        const QImage rainbow = provider.requestImage(u"1f308"_s, &size, QSize(40, 40));
        QCOMPARE(size, QSize(40, 40));
        QCOMPARE(rainbow.size(), size);
        QVERIFY2(hueCount(rainbow) >= 4, qPrintable(QString::number(hueCount(rainbow))));
        // Nothing is cut off.
        for (int i = 0; i < 40; ++i) {
            QVERIFY(rainbow.pixelColor(i, 0).alpha() < 128);
            QVERIFY(rainbow.pixelColor(0, i).alpha() < 255 || rainbow.pixelColor(39, i).alpha() < 255);
        }
        QCOMPARE(provider.requestImage(u"1f308"_s, &size, QSize(40, 40)).cacheKey(), rainbow.cacheKey());
        QCOMPARE(provider.requestImage(u"1F308"_s, &size, QSize(0, 24)).size(), QSize(24, 24));
        // A sequence is one picture: side by side its parts would be small. Keycap, kiss, family.
        for (const QString &id : {u"31-fe0f-20e3"_s, u"1f469-1f3fb-200d-2764-fe0f-200d-1f48b-200d-1f468-1f3ff"_s,
                                  u"1f468-200d-1f469-200d-1f467"_s}) {
            const QRect painted = boundsOf(provider.requestImage(id, nullptr, QSize(40, 40)),
                                           [](const QColor &color) { return color.alpha() > 128; });
            QVERIFY2(painted.height() >= 25 && painted.width() >= 25, qPrintable(id));
        }
    }

    void badEmojiImages()
    {
        EmojiImageProvider provider;
        for (const QString &id : {QString(), u"61"_s, u"nonsense"_s, u"1f600-"_s, u"d83d-de00"_s, u"1f600/../x"_s}) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(u"EmojiImageProvider: \"%1\" is no emoji"_s.arg(id)));
            QVERIFY(provider.requestImage(id, nullptr, QSize(20, 20)).isNull());
        }
        QTest::ignoreMessage(QtWarningMsg,
                             "EmojiImageProvider: \"1f600\" was requested 100000 pixels high, drawn 512 pixels high");
        QCOMPARE(provider.requestImage(u"1f600"_s, nullptr, QSize(100000, 100000)).width(), 512);
    }
};

QTEST_MAIN(tst_Host)
#include "tst_host.moc"
