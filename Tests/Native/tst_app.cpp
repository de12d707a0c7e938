#include <QGuiApplication>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

#include "App.h"
#include "KFont.h"
#include "ThemeManager.h"
#include "UIToolKitUtils.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
Window {
    width: 200; height: 200
    visible: true
    property int shortcuts: 0
    property bool tabDuringLoss: false
    Item {
        objectName: "plain"
        width: 50; height: 50
        focus: true
        activeFocusOnTab: true
    }
    TextInput { objectName: "text"; y: 50; width: 100; height: 20; text: "abc"; activeFocusOnTab: true }
    Item { objectName: "last"; y: 100; width: 50; height: 50; activeFocusOnTab: true }
    Shortcut { sequence: "F6"; onActivated: shortcuts++ }
}
)";

} // namespace

class tst_App : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keysThatNavigate_data();
    void keysThatNavigate();
    void pointersTurnItOff();
    void keptOverWindowChange();
    void tabKeyIsKnownDuringFocusChange();
    void simulatedTabCounts();
    void touchAndMouseState();
    void textScale();
    void animationsDisabled();
    void colorSets();
    void focusWindow();

private:
    QQuickItem *item(const char *name) const;
    void focus(const char *name);

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

void tst_App::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    QQmlComponent component(&m_engine);
    component.setData(sceneSource, {});
    m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
    QVERIFY2(m_window, qPrintable(component.errorString()));
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    App::instance()->setKeyboardFocus(false);
}

void tst_App::cleanup()
{
    m_window.reset();
    App::instance()->setTextScale(1);
}

QQuickItem *tst_App::item(const char *name) const
{
    return m_window->findChild<QQuickItem *>(QLatin1StringView(name));
}

void tst_App::focus(const char *name)
{
    item(name)->forceActiveFocus();
    QCOMPARE(m_window->activeFocusItem(), item(name));
}

void tst_App::keysThatNavigate_data()
{
    QTest::addColumn<QByteArray>("focusItem");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("turnsOn");

    QTest::newRow("Tab") << QByteArray("plain") << int(Qt::Key_Tab) << 0 << true;
    QTest::newRow("Backtab") << QByteArray("plain") << int(Qt::Key_Backtab) << int(Qt::ShiftModifier) << true;
    QTest::newRow("Tab in text") << QByteArray("text") << int(Qt::Key_Tab) << 0 << true;
    QTest::newRow("arrow") << QByteArray("plain") << int(Qt::Key_Down) << 0 << true;
    QTest::newRow("key taken by a shortcut") << QByteArray("plain") << int(Qt::Key_F6) << 0 << true;
    QTest::newRow("Home") << QByteArray("plain") << int(Qt::Key_Home) << 0 << true;
    QTest::newRow("Page Down") << QByteArray("plain") << int(Qt::Key_PageDown) << 0 << true;
    QTest::newRow("Home in text") << QByteArray("text") << int(Qt::Key_Home) << 0 << false;
    QTest::newRow("letter in text") << QByteArray("text") << int(Qt::Key_A) << 0 << false;
    QTest::newRow("Return") << QByteArray("plain") << int(Qt::Key_Return) << 0 << false;
    QTest::newRow("Alt+Tab") << QByteArray("plain") << int(Qt::Key_Tab) << int(Qt::AltModifier) << false;
}

void tst_App::keysThatNavigate()
{
    QFETCH(QByteArray, focusItem);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, turnsOn);

    focus(focusItem.constData());
    QSignalSpy spy(App::instance(), &App::isKeyboardFocusChanged);
    QTest::keyClick(m_window.get(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(App::instance()->isKeyboardFocus(), turnsOn);
    QCOMPARE(spy.count(), turnsOn ? 1 : 0);

    // Typing leaves what is on as well as what is off.
    focus("text");
    QTest::keyClick(m_window.get(), Qt::Key_B);
    QCOMPARE(App::instance()->isKeyboardFocus(), turnsOn);
    if (key == Qt::Key_F6)
        QCOMPARE(m_window->property("shortcuts").toInt(), 1);
}

void tst_App::pointersTurnItOff()
{
    App *app = App::instance();
    app->setKeyboardFocus(true);
    QTest::mouseMove(m_window.get(), QPoint(20, 20));
    QVERIFY(app->isKeyboardFocus());
    QTest::mouseClick(m_window.get(), Qt::RightButton, {}, QPoint(10, 110));
    QVERIFY(!app->isKeyboardFocus());

    app->setKeyboardFocus(true);
    const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
    QTest::touchEvent(m_window.get(), device.get()).press(0, QPoint(10, 10));
    QVERIFY(!app->isKeyboardFocus());
    QTest::touchEvent(m_window.get(), device.get()).release(0, QPoint(10, 10));
}

void tst_App::keptOverWindowChange()
{
    App::instance()->setKeyboardFocus(true);
    QQuickWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(App::instance()->isKeyboardFocus());
    other.close();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(App::instance()->isKeyboardFocus());
}

void tst_App::tabKeyIsKnownDuringFocusChange()
{
    App *app = App::instance();
    focus("plain");
    bool pressedDuringChange = false;
    connect(m_window.get(), &QQuickWindow::activeFocusItemChanged, this,
            [&] { pressedDuringChange = app->isTabKeyPressed(); });
    QTest::keyPress(m_window.get(), Qt::Key_Tab);
    QCOMPARE(m_window->activeFocusItem(), item("text"));
    QVERIFY(pressedDuringChange);
    QVERIFY(app->isTabKeyPressed());
    QTest::keyRelease(m_window.get(), Qt::Key_Tab);
    QVERIFY(!app->isTabKeyPressed());

    focus("last");
    QVERIFY(!pressedDuringChange);

    // The release of a key that closed its window, or left it, comes to nobody.
    QTest::keyPress(m_window.get(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(app->isTabKeyPressed());
    QQuickWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!app->isTabKeyPressed());
}

void tst_App::simulatedTabCounts()
{
    App *app = App::instance();
    focus("plain");
    bool pressedDuringChange = false;
    connect(item("plain"), &QQuickItem::activeFocusChanged, this,
            [&] { pressedDuringChange = app->isTabKeyPressed(); });
    QVERIFY(UIToolKitUtils::instance()->simulateKeyEvent(item("plain"), Qt::Key_Tab));
    QVERIFY(pressedDuringChange);
    QVERIFY(!app->isTabKeyPressed());
    QVERIFY2(!app->isKeyboardFocus(), "the program's own keys tell nothing of how the user navigates");
}

void tst_App::touchAndMouseState()
{
    App *app = App::instance();
    QVERIFY(!app->isMousePressed());
    QTest::mousePress(m_window.get(), Qt::LeftButton, {}, QPoint(10, 110));
    QVERIFY(app->isMousePressed());
    QTest::mouseRelease(m_window.get(), Qt::LeftButton, {}, QPoint(10, 110));
    QVERIFY(!app->isMousePressed());

    const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
    QTest::touchEvent(m_window.get(), device.get()).press(0, QPoint(10, 110));
    QVERIFY(app->isMousePressed());
    QTest::touchEvent(m_window.get(), device.get()).release(0, QPoint(10, 110));
    QVERIFY(!app->isMousePressed());
}

void tst_App::textScale()
{
    App *app = App::instance();
    QSignalSpy spy(app, &App::textScaleChanged);
    QCOMPARE(KFont(KFont::BodyPrimary).pixelSize(), 16);
    app->setTextScale(1.5);
    QCOMPARE(KFont(KFont::BodyPrimary).pixelSize(), 24);
    app->setTextScale(1.5);
    QCOMPARE(spy.count(), 1);

    app->setTextScale(1000);
    QCOMPARE(app->textScale(), 4.0);
    for (const qreal bad :
         {0.0, -1.0, std::numeric_limits<qreal>::quiet_NaN(), std::numeric_limits<qreal>::infinity()}) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^App: .* is no text scale$"_s));
        app->setTextScale(bad);
        QCOMPARE(app->textScale(), 4.0);
    }
}

void tst_App::animationsDisabled()
{
    App *app = App::instance();
    QVERIFY(!app->animationsDisabled());
    QSignalSpy spy(app, &App::animationsDisabledChanged);
    app->setAnimationsDisabled(true);
    app->setAnimationsDisabled(true);
    QVERIFY(app->animationsDisabled());
    QCOMPARE(spy.count(), 1);
    app->setAnimationsDisabled(false);
}

void tst_App::colorSets()
{
    const App *app = App::instance();
    const QString name = ThemeManager::instance()->colorSetNames().constFirst();
    ThemeManager::instance()->setTheme(u"light"_s);
    QVERIFY(app->getColorSet(name).isValid());
    QCOMPARE(app->getColorSet(name), app->getColorSet(name, u"light"_s));
    QCOMPARE(app->getColorSet(name), app->getColorSet(name, u"global"_s));
    ThemeManager::instance()->setTheme(u"dark"_s);
    QCOMPARE(app->getColorSet(name), app->getColorSet(name, u"dark"_s));
    ThemeManager::instance()->setTheme(u"light"_s);
    QVERIFY(!app->getColorSet(QString()).isValid());
}

void tst_App::focusWindow()
{
    QSignalSpy spy(App::instance(), &App::focusWindowChanged);
    QQuickWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(spy.last().first().value<QWindow *>(), &other);
}

QTEST_MAIN(tst_App)
#include "tst_app.moc"
