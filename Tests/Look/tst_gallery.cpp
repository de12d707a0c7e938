#include "CommandLine.h"
#include "GalleryEngine.h"
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
#include <QQuickItem>
#include <QQuickWindow>
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
    void tabWalks_data();
    void tabWalks();
    void arrowsMoveAChoice();
    void themeSwitchRepaints();
    void eventsAreLogged();
    void pagesTakeTheirControlsAlong();
    void commandLineIsUnderstood_data();
    void commandLineIsUnderstood();
    void programAnswers();

private:
    struct Answer
    {
        int status;
        QByteArray output;
        QByteArray errors;
    };

    QQuickWindow *window() const { return m_gallery->window(); }
    QQuickItem *page() const { return window()->property("page").value<QQuickItem *>(); }
    QObject *drawer() const { return window()->property("drawer").value<QObject *>(); }
    void open(const QString &name);
    bool belongsToPage(QQuickItem *item) const;
    void checkFocusedItem(QQuickItem *item);
    QStringList misfits() const;
    static Answer ask(const QString &platform, const QStringList &arguments);

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
    QTest::addColumn<qreal>("scale");
    bool isLarge = false;
    for (const QString &theme : CommandLine::themes()) {
        for (const bool rightToLeft : {false, true}) {
            QTest::addRow("%s%s%s", qPrintable(theme), rightToLeft ? ", right to left" : "", isLarge ? ", large" : "")
                << theme << rightToLeft << (isLarge ? largeTextScale : normalTextScale);
            isLarge = !isLarge;
        }
        isLarge = !isLarge; // each direction in each size
    }
}

void tst_Gallery::everyPageOpens()
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

//! The texts in the window that are cut, and those on the page that stand out of their card.
QStringList tst_Gallery::misfits() const
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
    auto *control = qobject_cast<QQuickItem *>(QQmlListReference(page(), "controls").at(0));
    QVERIFY(control && control->parentItem());
    const QQuickItem *const column = control->parentItem();
    open(PageIndex::startPage());
    QTRY_VERIFY(column->childItems().isEmpty());
}

void tst_Gallery::commandLineIsUnderstood_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QStringList>("mentions"); // none where nothing is wrong

    const auto row = [](const char *arguments, const QStringList &mentions) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << mentions;
    };
    row("--page KText --theme dark --rtl --text-scale 1.5 --shot a.png", {});
    row("--page Nope", {u"\"Nope\""_s, u"KText"_s});
    row("--page ktext", {u"\"ktext\""_s});
    row("--page", {u"page"_s});
    row("--theme sepia", {u"\"sepia\""_s, u"light, dark, highContrast"_s});
    row("--theme ", {u"highContrast"_s});
    row("--text-scale big", {u"\"big\""_s});
    row("--text-scale nan", {u"\"nan\""_s});
    row("--text-scale 100", {u"\"100\""_s});
    row("--colour", {u"colour"_s});
    row("KText", {u"\"KText\""_s});
    row("--shot ", {u"picture"_s});
}

void tst_Gallery::commandLineIsUnderstood()
{
    QFETCH(QString, arguments);
    QFETCH(QStringList, mentions);
    const CommandLine options = CommandLine::parse((u"gallery "_s + arguments).split(u' '));
    QCOMPARE(options.exitStatus, mentions.isEmpty() ? 0 : 2);
    QCOMPARE(options.message.isEmpty(), mentions.isEmpty());
    QVERIFY2(!options.message.contains(u'\n'), qPrintable(options.message));
    for (const QString &text : mentions)
        QVERIFY2(options.message.contains(text), qPrintable(options.message));
}

tst_Gallery::Answer tst_Gallery::ask(const QString &platform, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, platform);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + u"/gallery"_s, arguments);
    process.waitForFinished();
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

void tst_Gallery::programAnswers()
{
    // No display is needed for these.
    const Answer list = ask(u"none-such"_s, {u"--list"_s});
    QCOMPARE(list.status, 0);
    QCOMPARE(list.output.count('\n'), PageIndex::pages().size());
    QVERIFY(list.output.contains("\nKText\n"));
    const Answer unknown = ask(u"none-such"_s, {u"--page"_s, u"Nope"_s});
    QCOMPARE(unknown.status, 2);
    QCOMPARE(unknown.errors.count('\n'), 1);

    const QTemporaryDir directory;
    const QString file = directory.filePath(u"shot.png"_s);
    const Answer shot =
        ask(u"offscreen"_s, {u"--page"_s, u"KSvgIcon"_s, u"--theme"_s, u"dark"_s, u"--rtl"_s, u"--shot"_s, file});
    QVERIFY2(shot.status == 0, shot.errors.constData());
    QCOMPARE(QImage(file).size(), QSize(1280, 860));
    const Answer nowhere = ask(u"offscreen"_s, {u"--shot"_s, directory.filePath(u"missing/shot.png"_s)});
    QCOMPARE(nowhere.status, 1);
    QVERIFY(nowhere.errors.contains("missing/shot.png"));
}

QTEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
