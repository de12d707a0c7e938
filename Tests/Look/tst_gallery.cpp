#include "CommandLine.h"
#include "GalleryEngine.h"
#include "PageIndex.h"
#include "PageModel.h"
#include "Photographer.h"
#include "QtFaults.h"
#include "Session.h"

#include <AccessibleMonitor.h>
#include <App.h>
#include <ThemeManager.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
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
class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void pagesDeclareThemselves();
    void searchFindsPages();
    void everyPageOpens_data();
    void everyPageOpens();
    void textsFit_data();
    void textsFit();
    void tabWalks_data();
    void tabWalks();
    void backtabWalksBack_data();
    void backtabWalksBack();
    void arrowsMoveAChoice();
    void themeSwitchRepaints();
    void eventsAreLogged();
    void pagesTakeTheirControlsAlong();
    void commandLineIsUnderstood_data();
    void commandLineIsUnderstood();
    void programAnswers();
    void programTakesPictures();

private:
    QQuickWindow *window() const { return m_gallery->window(); }
    QQuickItem *page() const { return window()->property("page").value<QQuickItem *>(); }
    QObject *drawer() const { return window()->property("drawer").value<QObject *>(); }
    void open(const QString &name);
    bool belongsToPage(QQuickItem *item) const;
    void checkFocusedItem(QQuickItem *item);

    std::unique_ptr<AccessibleMonitor> m_accessibility;
    std::unique_ptr<GalleryEngine> m_gallery;
};

void tst_Gallery::initTestCase()
{
    App::instance()->setAnimationsDisabled(true);
    // Roles and names exist only while somebody asks for them.
    m_accessibility = std::make_unique<AccessibleMonitor>();
    m_gallery = std::make_unique<GalleryEngine>();
    QVERIFY(m_gallery->load());
    window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window()));
}

void tst_Gallery::init()
{
    QTest::failOnWarning(QtFaults::anythingElse());
}

void tst_Gallery::cleanup()
{
    App::instance()->setTextScale(normalTextScale);
    Session::instance()->setRightToLeft(false);
    ThemeManager::instance()->setTheme(u"light"_s);
    drawer()->setProperty("currentTab", 0);
    open(PageIndex::startPage());
}

void tst_Gallery::open(const QString &name)
{
    Session::instance()->setPage(name);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY2(page(), qPrintable(name));
    QVERIFY2(page()->height() > 0, qPrintable(name));
}

bool tst_Gallery::belongsToPage(QQuickItem *item) const
{
    // The page's controls lie in the panel beside it, but the page remains their parent object.
    for (QObject *ancestor = item; ancestor; ancestor = ancestor->parent()) {
        if (ancestor == page())
            return true;
    }
    return page()->isAncestorOf(item);
}

void tst_Gallery::pagesDeclareThemselves()
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

void tst_Gallery::searchFindsPages()
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

void tst_Gallery::everyPageOpens_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("rightToLeft");
    for (const QString &theme : CommandLine::themes()) {
        QTest::addRow("%s", qPrintable(theme)) << theme << false;
        QTest::addRow("%s, right to left", qPrintable(theme)) << theme << true;
    }
}

void tst_Gallery::everyPageOpens()
{
    QFETCH(QString, theme);
    QFETCH(bool, rightToLeft);
    ThemeManager::instance()->setTheme(theme);
    Session::instance()->setRightToLeft(rightToLeft);
    for (const PageInfo &info : PageIndex::pages()) {
        open(info.name);
        const QImage frame = window()->grabWindow();
        QCOMPARE(frame.size(), window()->size());
    }
}

void tst_Gallery::textsFit_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("normal") << normalTextScale << false;
    QTest::newRow("large") << largeTextScale << false;
    QTest::newRow("large, right to left") << largeTextScale << true;
}

void tst_Gallery::textsFit()
{
    QFETCH(qreal, scale);
    QFETCH(bool, rightToLeft);
    App::instance()->setTextScale(scale);
    Session::instance()->setRightToLeft(rightToLeft);

    constexpr qreal rounding = 1;
    QStringList misfits;
    for (const PageInfo &info : PageIndex::pages()) {
        open(info.name);
        QCoreApplication::processEvents();
        window()->grabWindow(); // lays out
        forEachVisible(window()->contentItem(), [&](QQuickItem *item) {
            if (!item->inherits("QQuickText") || item->property("elide").toInt() != Qt::ElideNone)
                return;
            const qreal needed = item->property("contentWidth").toReal() + item->property("leftPadding").toReal()
                + item->property("rightPadding").toReal();
            const bool isCut = item->property("truncated").toBool() || needed > item->width() + rounding;
            if (isCut)
                misfits.append(u"%1: %2"_s.arg(info.name, item->property("text").toString()));
        });
        // Nothing may stand out of its card.
        forEachVisible(page(), [&](QQuickItem *item) {
            if (!item->property("stageColorSetName").isValid())
                return;
            const QRectF card = item->boundingRect().adjusted(-rounding, -rounding, rounding, rounding);
            forEachVisible(item, [&](QQuickItem *part) {
                if (!part->inherits("QQuickText") || part->property("text").toString().isEmpty())
                    return;
                for (const QQuickItem *ancestor = part; ancestor && ancestor != item;
                     ancestor = ancestor->parentItem()) {
                    if (ancestor->clip())
                        return;
                }
                if (!card.contains(part->mapRectToItem(item, part->boundingRect())))
                    misfits.append(u"%1: %2 leaves its card"_s.arg(info.name, part->property("text").toString()));
            });
        });
    }
    QVERIFY2(misfits.isEmpty(), qPrintable(misfits.join(u'\n')));
}

void tst_Gallery::tabWalks_data()
{
    QTest::addColumn<QString>("name");
    for (const PageInfo &info : PageIndex::pages())
        QTest::addRow("%s", qPrintable(info.name)) << info.name;
}

void tst_Gallery::checkFocusedItem(QQuickItem *item)
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

void tst_Gallery::tabWalks()
{
    QFETCH(QString, name);
    open(name);
    const bool checksShell = name == PageIndex::startPage();
    QTest::keyClick(window(), Qt::Key_Tab);
    QQuickItem *const first = window()->activeFocusItem();
    QVERIFY(first);

    QSet<QQuickItem *> stops;
    for (QQuickItem *item = first; stops.size() < moreStopsThanAnyPageHas;) {
        QVERIFY2(!stops.contains(item), qPrintable(u"the focus goes in a circle at "_s + describe(item)));
        stops.insert(item);
        if (checksShell || belongsToPage(item))
            checkFocusedItem(item);
        if (QTest::currentTestFailed())
            return;
        QTest::keyClick(window(), Qt::Key_Tab);
        QVERIFY2(window()->activeFocusItem() != item, qPrintable(u"the focus is trapped in "_s + describe(item)));
        item = window()->activeFocusItem();
        QVERIFY(item);
        if (item == first)
            return;
    }
    QFAIL("the focus never comes back to where it started");
}

void tst_Gallery::backtabWalksBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain items") << u"KCustomFocusItem"_s;
    QTest::newRow("list") << u"ColorSets"_s;
}

void tst_Gallery::backtabWalksBack()
{
    QFETCH(QString, name);
    open(name);
    QTest::keyClick(window(), Qt::Key_Tab);
    QList<QQuickItem *> stops;
    for (QQuickItem *item = window()->activeFocusItem(); !stops.contains(item); item = window()->activeFocusItem()) {
        stops.append(item);
        QTest::keyClick(window(), Qt::Key_Tab);
    }
    for (auto stop = stops.crbegin(); stop != stops.crend(); ++stop) {
        QTest::keyClick(window(), Qt::Key_Tab, Qt::ShiftModifier);
        QVERIFY2(window()->activeFocusItem() == *stop,
                 qPrintable(describe(window()->activeFocusItem()) + u" instead of "_s + describe(*stop)));
    }
}

void tst_Gallery::arrowsMoveAChoice()
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

void tst_Gallery::themeSwitchRepaints()
{
    open(u"KRectangle"_s);
    QImage previous;
    for (const QString &theme : CommandLine::themes()) {
        ThemeManager::instance()->setTheme(theme);
        QCoreApplication::processEvents();
        const QImage frame = window()->grabWindow();
        QVERIFY2(frame != previous, qPrintable(theme));
        previous = frame;

        // Items that were there before must have followed, the window's ground and the list's alike.
        const QPoint emptyCorner(2, window()->height() - 3);
        QCOMPARE(frame.pixelColor(emptyCorner), App::instance()->getColorSet(u"background-primary"_s).normal());
        QCOMPARE(window()->color(), App::instance()->getColorSet(u"modal-secondary-background"_s).normal());
    }
}

void tst_Gallery::eventsAreLogged()
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

void tst_Gallery::pagesTakeTheirControlsAlong()
{
    open(u"KRectangle"_s);
    QQuickItem *control = nullptr;
    {
        const QQmlListReference controls(page(), "controls");
        QVERIFY(controls.count() > 0);
        control = qobject_cast<QQuickItem *>(controls.at(0));
    }
    QVERIFY(control && control->parentItem());
    QQuickItem *const column = control->parentItem();
    const auto controlCount = [column] { return column->childItems().size(); };
    QVERIFY(controlCount() > 0);
    open(PageIndex::startPage());
    QTRY_COMPARE(controlCount(), 0);
}

void tst_Gallery::commandLineIsUnderstood_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("mentions");

    QTest::newRow("nothing") << QStringList{} << 0 << QStringList{};
    QTest::newRow("all at once") << QStringList{u"--page"_s,       u"KText"_s, u"--theme"_s, u"dark"_s, u"--rtl"_s,
                                                u"--text-scale"_s, u"1.5"_s,   u"--shot"_s,  u"a.png"_s}
                                 << 0 << QStringList{};
    QTest::newRow("unknown page") << QStringList{u"--page"_s, u"Nope"_s} << 2 << QStringList{u"\"Nope\""_s, u"KText"_s};
    QTest::newRow("page in the wrong case") << QStringList{u"--page"_s, u"ktext"_s} << 2 << QStringList{u"\"ktext\""_s};
    QTest::newRow("unknown theme") << QStringList{u"--theme"_s, u"sepia"_s} << 2
                                   << QStringList{u"\"sepia\""_s, u"light, dark, highContrast"_s};
    QTest::newRow("empty theme") << QStringList{u"--theme"_s, QString()} << 2 << QStringList{u"highContrast"_s};
    QTest::newRow("scale is no number") << QStringList{u"--text-scale"_s, u"big"_s} << 2 << QStringList{u"\"big\""_s};
    QTest::newRow("scale is nan") << QStringList{u"--text-scale"_s, u"nan"_s} << 2 << QStringList{u"\"nan\""_s};
    QTest::newRow("scale is huge") << QStringList{u"--text-scale"_s, u"100"_s} << 2 << QStringList{u"\"100\""_s};
    QTest::newRow("unknown option") << QStringList{u"--colour"_s} << 2 << QStringList{u"colour"_s};
    QTest::newRow("stray word") << QStringList{u"KText"_s} << 2 << QStringList{u"\"KText\""_s};
    QTest::newRow("no value") << QStringList{u"--page"_s} << 2 << QStringList{u"page"_s};
    QTest::newRow("no file") << QStringList{u"--shot"_s, QString()} << 2 << QStringList{u"picture"_s};
}

void tst_Gallery::commandLineIsUnderstood()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QStringList, mentions);
    const CommandLine options = CommandLine::parse(QStringList{u"gallery"_s} + arguments);
    QCOMPARE(options.exitStatus, status);
    QCOMPARE(options.message.isEmpty(), mentions.isEmpty());
    QVERIFY2(!options.message.contains(u'\n'), qPrintable(options.message));
    for (const QString &text : mentions)
        QVERIFY2(options.message.contains(text), qPrintable(options.message));
}

void tst_Gallery::programAnswers()
{
    const QString program = QCoreApplication::applicationDirPath() + u"/gallery"_s;
    QProcess process;
    // No display is needed for either answer.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"none-such"_s);
    process.setProcessEnvironment(environment);

    process.start(program, {u"--list"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const QStringList names = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(names.size(), PageIndex::pages().size());
    QVERIFY(names.contains(u"KText"_s));

    process.start(program, {u"--page"_s, u"Nope"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(process.readAllStandardError().count('\n'), 1);
}

void tst_Gallery::programTakesPictures()
{
    QTemporaryDir directory;
    const QString file = directory.filePath(u"shot.png"_s);
    const QString program = QCoreApplication::applicationDirPath() + u"/gallery"_s;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, {u"--page"_s, u"KSvgIcon"_s, u"--theme"_s, u"dark"_s, u"--rtl"_s, u"--shot"_s, file});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QImage(file).size(), QSize(1280, 860));

    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, {u"--shot"_s, directory.filePath(u"missing/shot.png"_s)});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("missing/shot.png"));
}

QTEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
