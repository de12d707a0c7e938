#include "CommandLine.h"
#include "GalleryEngine.h"
#include "NativeTest.h"
#include "PageIndex.h"
#include "PageModel.h"
#include "QtFaults.h"
#include "Session.h"

#include <AccessibleMonitor.h>
#include <App.h>
#include <ThemeManager.h>

#include <QAccessible>
#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtPlugin>
#include <QtQml/qqmlextensionplugin.h>

#include <functional>

Q_IMPORT_QML_PLUGIN(GalleryPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr qreal normalTextScale = 1;
constexpr qreal largeTextScale = 1.25;
constexpr int moreStopsThanAnyPageHas = 120;

QString describe(const QObject *object)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(const_cast<QObject *>(object));
    const QString name = interface ? interface->text(QAccessible::Name) : QString();
    return u"%1 \"%2\""_s.arg(QString::fromLatin1(object->metaObject()->className()), name);
}

void forEachVisible(QQuickItem *item, const std::function<void(QQuickItem *)> &function)
{
    if (!item->isVisible())
        return;
    function(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        forEachVisible(child, function);
}

} // namespace

//! Opens every page in every way, walks it by keyboard, and asks the program what its command line offers.
class tst_Gallery : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        App::instance()->setAnimationsDisabled(true);
        QVERIFY(m_gallery.load());
        QVERIFY(activate(*window()));
    }

    void init() override { QTest::failOnWarning(QtFaults::anythingElse()); }

    void cleanup()
    {
        App::instance()->setTextScale(normalTextScale);
        Session::instance()->setRightToLeft(false);
        ThemeManager::instance()->setTheme(u"light"_s);
        drawer()->setProperty("currentTab", 0);
        open(PageIndex::startPage());
    }

    void pagesDeclareThemselves()
    {
        const QDir sources(QStringLiteral(UITOOLKIT_SOURCE_DIR) + u"/Gallery/Pages"_s);
        QCOMPARE(PageIndex::pages().size(), sources.entryList({u"*Page.qml"_s}).size());
        QCOMPARE(PageIndex::pages().first().name, PageIndex::startPage());
        for (const PageInfo &info : PageIndex::pages()) {
            open(info.name);
            QVERIFY2(!info.category.isEmpty() && !info.description.isEmpty(), qPrintable(info.name));
            QCOMPARE(page()->property("category").toString(), info.category);
            QCOMPARE(page()->property("description").toString(), info.description);
        }
    }

    void searchFindsPages()
    {
        PageModel model;
        const int all = model.count();
        model.setFilter(u"  sEPARAtor pixel "_s);
        QCOMPARE(model.count(), 1);
        QCOMPARE(model.nameAt(0), u"KSeparator"_s);
        QCOMPARE(model.indexOf(u"KText"_s), -1);
        model.setFilter(u"no such page"_s);
        QCOMPARE(model.count(), 0);
        QCOMPARE(model.nameAt(0), QString());
        model.setFilter({});
        QCOMPARE(model.count(), all);
    }

    void everyPageOpens_data()
    {
        const Table<QString, bool, qreal> row{"theme", "rightToLeft", "scale"};
        row("light", "light", false, normalTextScale);
        row("light, right to left, large", "light", true, largeTextScale);
        row("dark, large", "dark", false, largeTextScale);
        row("high contrast, right to left", "highContrast", true, normalTextScale);
    }

    void everyPageOpens()
    {
        QFETCH(QString, theme);
        QFETCH(bool, rightToLeft);
        QFETCH(qreal, scale);
        ThemeManager::instance()->setTheme(theme);
        Session::instance()->setRightToLeft(rightToLeft);
        App::instance()->setTextScale(scale);
        QStringList allMisfits;
        for (const PageInfo &info : PageIndex::pages()) {
            open(info.name);
            QCoreApplication::processEvents();
            QCOMPARE(window()->grabWindow().size(), window()->size()); // lays out
            for (const QString &text : misfits())
                allMisfits.append(u"%1: %2"_s.arg(info.name, text));
        }
        QVERIFY2(allMisfits.isEmpty(), qPrintable(allMisfits.join(u'\n')));
    }

    void tabWalks_data()
    {
        const Table<QString> row{"name"};
        for (const PageInfo &info : PageIndex::pages())
            row(qPrintable(info.name), info.name);
    }

    void tabWalks()
    {
        QFETCH(QString, name);
        open(name);
        const bool checksShell = name == PageIndex::startPage();
        QTest::keyClick(window(), Qt::Key_Tab);
        QQuickItem *const first = window()->activeFocusItem();
        QList<QQuickItem *> stops;
        for (QQuickItem *item = first; stops.isEmpty() || item != first; item = window()->activeFocusItem()) {
            QVERIFY(item);
            QVERIFY2(!stops.contains(item), qPrintable(u"the focus goes in a circle at "_s + describe(item)));
            stops.append(item);
            if (checksShell || belongsToPage(item))
                checkFocusedItem(item);
            if (QTest::currentTestFailed())
                return;
            QTest::keyClick(window(), Qt::Key_Tab);
        }
        // And back again.
        for (auto stop = stops.crbegin(); stop != stops.crend(); ++stop) {
            QTest::keyClick(window(), Qt::Key_Backtab, Qt::ShiftModifier);
            QVERIFY2(window()->activeFocusItem() == *stop,
                     qPrintable(describe(window()->activeFocusItem()) + u" instead of "_s + describe(*stop)));
        }
    }

    void arrowsMoveAChoice()
    {
        const auto focused = [this](const QString &name) {
            for (int i = 0; i < moreStopsThanAnyPageHas; ++i) {
                QTest::keyClick(window(), Qt::Key_Tab);
                if (QAccessible::queryAccessibleInterface(window()->activeFocusItem())->text(QAccessible::Name) == name)
                    return true;
            }
            return false;
        };
        QVERIFY(focused(u"Light"_s));
        QTest::keyClick(window(), Qt::Key_Right);
        QCOMPARE(ThemeManager::instance()->theme(), u"dark"_s);
        QTest::keyClick(window(), Qt::Key_Left);
        QTest::keyClick(window(), Qt::Key_Left);
        QCOMPARE(ThemeManager::instance()->theme(), u"highContrast"_s);

        QVERIFY(focused(u"Left to right"_s));
        QTest::keyClick(window(), Qt::Key_Right);
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        // What is next lies to the left now.
        QTest::keyClick(window(), Qt::Key_Right);
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

    void themeSwitchRepaints()
    {
        open(u"KRectangle"_s);
        for (const QString &theme : CommandLine::themes()) {
            ThemeManager::instance()->setTheme(theme);
            QCoreApplication::processEvents();
            const QImage frame = window()->grabWindow();
            // Items that were there before must have followed, the window's ground and the list's alike.
            const QPoint emptyCorner(2, window()->height() - 3);
            QCOMPARE(frame.pixelColor(emptyCorner), App::instance()->getColorSet(u"background-primary"_s).normal());
            QCOMPARE(window()->color(), App::instance()->getColorSet(u"modal-secondary-background"_s).normal());
        }
    }

    void eventsAreLogged()
    {
        open(u"KItem"_s);
        QCOMPARE(drawer()->property("eventCount").toInt(), 0);
        QVERIFY(QMetaObject::invokeMethod(page(), "log", Q_ARG(QString, u"something happened"_s)));
        QCOMPARE(drawer()->property("eventCount").toInt(), 1);
        drawer()->setProperty("currentTab", 1);
        window()->grabWindow();
        open(u"KText"_s);
        QCOMPARE(drawer()->property("eventCount").toInt(), 0);

        // The screen reader's view, while the focus moves.
        drawer()->setProperty("currentTab", 2);
        QTest::keyClick(window(), Qt::Key_Tab);
        QTest::keyClick(window(), Qt::Key_Tab);
        window()->grabWindow();
    }

    void pagesTakeTheirControlsAlong()
    {
        open(u"KRectangle"_s);
        auto *control = qobject_cast<QQuickItem *>(QQmlListReference(page(), "controls").at(0));
        QVERIFY(control && control->parentItem());
        const QQuickItem *const column = control->parentItem();
        open(PageIndex::startPage());
        QTRY_VERIFY(column->childItems().isEmpty());
    }

    void commandLineIsAnswered_data()
    {
        const Table<int, qsizetype, QStringList> row{"status", "lines", "mentions"};
        row("--list", 0, PageIndex::pages().size(), {u"\nKText\n"_s});
        row("--page Nope", 2, 1, {u"\"Nope\""_s, u"KText"_s});
        row("--page ktext", 2, 1, {u"\"ktext\""_s});
        row("--page", 2, 1, {u"page"_s});
        row("--theme sepia", 2, 1, {u"\"sepia\""_s, u"light, dark, highContrast"_s});
        row("--theme ", 2, 1, {u"highContrast"_s});
        row("--text-scale big", 2, 1, {u"\"big\""_s});
        row("--text-scale nan", 2, 1, {u"\"nan\""_s});
        row("--text-scale 100", 2, 1, {u"\"100\""_s});
        row("--colour", 2, 1, {u"colour"_s});
        row("KText", 2, 1, {u"\"KText\""_s});
        row("--shot ", 2, 1, {u"picture"_s});
    }

    void commandLineIsAnswered()
    {
        QFETCH(QStringList, mentions);
        const QStringList arguments = QString::fromLatin1(QTest::currentDataTag()).split(u' ');
        const auto [status, answer] = ask(arguments, u"none-such"_s); // no display is needed
        QTEST(status, "status");
        QTEST(answer.count(u'\n'), "lines");
        for (const QString &text : mentions)
            QVERIFY2(answer.contains(text), qPrintable(answer));
    }

    void picturesAreSaved()
    {
        const QTemporaryDir directory;
        const QString file = directory.filePath(u"shot.png"_s);
        const QString options = u"--page KSvgIcon --theme dark --rtl --text-scale 1.5 --shot"_s;
        const auto [status, errors] = ask(options.split(u' ') << file, u"offscreen"_s);
        QVERIFY2(status == 0, qPrintable(errors));
        QCOMPARE(QImage(file).size(), QSize(1280, 860));
        const auto [statusNowhere, errorNowhere] = ask({u"--shot"_s, u"/no-such-folder/shot.png"_s}, u"offscreen"_s);
        QCOMPARE(statusNowhere, 1);
        QVERIFY(errorNowhere.contains(u"/no-such-folder/shot.png"_s));
    }

private:
    QQuickWindow *window() const { return m_gallery.window(); }
    QQuickItem *page() const { return window()->property("page").value<QQuickItem *>(); }
    QObject *drawer() const { return window()->property("drawer").value<QObject *>(); }

    void open(const QString &name)
    {
        Session::instance()->setPage(name);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        QVERIFY2(page(), qPrintable(name));
        QVERIFY2(page()->height() > 0, qPrintable(name));
    }

    bool belongsToPage(QQuickItem *item) const
    {
        // The page's controls lie in the panel beside it, but the page remains their parent object.
        for (QObject *ancestor = item; ancestor; ancestor = ancestor->parent()) {
            if (ancestor == page())
                return true;
        }
        return page()->isAncestorOf(item);
    }

    void checkFocusedItem(QQuickItem *item)
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(item);
        QVERIFY2(interface, qPrintable(describe(item)));
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), qPrintable(describe(item)));
        QVERIFY2(interface->role() != QAccessible::NoRole && interface->role() != QAccessible::Client,
                 qPrintable(describe(item)));

        QVERIFY2(App::instance()->isKeyboardFocus(), qPrintable(describe(item)));
        App::instance()->setKeyboardFocus(false);
        const QImage without = window()->grabWindow();
        App::instance()->setKeyboardFocus(true);
        QTRY_VERIFY2(window()->grabWindow() != without, qPrintable(u"no focus ring: "_s + describe(item)));
    }

    //! The texts in the window that are cut, and those on the page that stand out of their card.
    QStringList misfits() const
    {
        constexpr qreal rounding = 1;
        QStringList found;
        forEachVisible(window()->contentItem(), [&](QQuickItem *item) {
            if (!item->inherits("QQuickText") || item->property("elide").toInt() != Qt::ElideNone)
                return;
            const qreal needed = item->property("contentWidth").toReal() + item->property("leftPadding").toReal()
                + item->property("rightPadding").toReal();
            if (item->property("truncated").toBool() || needed > item->width() + rounding)
                found.append(item->property("text").toString());
        });
        forEachVisible(page(), [&](QQuickItem *item) {
            if (!item->property("stageColorSetName").isValid())
                return;
            const QRectF card = item->boundingRect().adjusted(-rounding, -rounding, rounding, rounding);
            forEachVisible(item, [&](QQuickItem *part) {
                const QString text = part->inherits("QQuickText") ? part->property("text").toString() : QString();
                bool isClipped = false;
                for (const QQuickItem *ancestor = part; ancestor && ancestor != item; ancestor = ancestor->parentItem())
                    isClipped = isClipped || ancestor->clip();
                if (!text.isEmpty() && !isClipped && !card.contains(part->mapRectToItem(item, part->boundingRect())))
                    found.append(text + u" leaves its card"_s);
            });
        });
        return found;
    }

    //! Runs the program: its exit status, and what it says, on the error output if it fails.
    static std::pair<int, QString> ask(const QStringList &arguments, const QString &platform)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, platform);
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationDirPath() + u"/gallery"_s, arguments);
        process.waitForFinished();
        const int status = process.exitCode();
        return {status,
                QString::fromUtf8(status == 0 ? process.readAllStandardOutput() : process.readAllStandardError())};
    }

    // Roles and names exist only while somebody asks for them.
    AccessibleMonitor m_accessibility;
    GalleryEngine m_gallery;
};

QTEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
