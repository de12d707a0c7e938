#include "App.h"
#include "KFont.h"
#include "NativeTest.h"
#include "ThemeManager.h"
#include "UIToolKitUtils.h"

#include <QGuiApplication>
#include <QPointer>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
Window {
    width: 200; height: 200
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

class tst_App : public SceneTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        NativeTest::init();
        open(sceneSource);
        m_app->setKeyboardFocus(false);
    }

    void cleanup() override
    {
        SceneTest::cleanup();
        m_app->setTextScale(1);
    }

    void keysThatNavigate_data()
    {
        const Table<QByteArray, Qt::Key, Qt::KeyboardModifiers, bool> row{"focusItem", "key", "modifiers", "turnsOn"};
        row("Tab", "plain", Qt::Key_Tab, Qt::NoModifier, true);
        row("Backtab", "plain", Qt::Key_Backtab, Qt::ShiftModifier, true);
        row("Tab in text", "text", Qt::Key_Tab, Qt::NoModifier, true);
        row("arrow", "plain", Qt::Key_Down, Qt::NoModifier, true);
        row("key taken by a shortcut", "plain", Qt::Key_F6, Qt::NoModifier, true);
        row("Home", "plain", Qt::Key_Home, Qt::NoModifier, true);
        row("Page Down", "plain", Qt::Key_PageDown, Qt::NoModifier, true);
        row("Home in text", "text", Qt::Key_Home, Qt::NoModifier, false);
        row("letter in text", "text", Qt::Key_A, Qt::NoModifier, false);
        row("Return", "plain", Qt::Key_Return, Qt::NoModifier, false);
        row("Alt+Tab", "plain", Qt::Key_Tab, Qt::AltModifier, false);
    }

    void keysThatNavigate()
    {
        QFETCH(QByteArray, focusItem);
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(bool, turnsOn);
        focus(focusItem.constData());
        QSignalSpy spy(m_app, &App::isKeyboardFocusChanged);
        QTest::keyClick(m_window.get(), key, modifiers);
        QCOMPARE(m_app->isKeyboardFocus(), turnsOn);
        QCOMPARE(spy.count(), turnsOn ? 1 : 0);

        // Typing leaves what is on as well as what is off.
        focus("text");
        QTest::keyClick(m_window.get(), Qt::Key_B);
        QCOMPARE(m_app->isKeyboardFocus(), turnsOn);
        if (key == Qt::Key_F6)
            QCOMPARE(m_window->property("shortcuts").toInt(), 1);
    }

    void pointersTurnItOff()
    {
        const QPoint place(10, 110);
        const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
        const std::pair<std::function<void()>, std::function<void()>> pointers[] = {
            {[&] { QTest::mousePress(m_window.get(), Qt::RightButton, {}, place); },
             [&] { QTest::mouseRelease(m_window.get(), Qt::RightButton, {}, place); }},
            {[&] { QTest::touchEvent(m_window.get(), device.get()).press(0, place); },
             [&] { QTest::touchEvent(m_window.get(), device.get()).release(0, place); }}};
        for (const auto &[press, release] : pointers) {
            m_app->setKeyboardFocus(true);
            QTest::mouseMove(m_window.get(), QPoint(20, 20));
            QVERIFY(m_app->isKeyboardFocus() && !m_app->isMousePressed());
            press();
            QVERIFY(!m_app->isKeyboardFocus() && m_app->isMousePressed());
            release();
            QVERIFY(!m_app->isMousePressed());
        }
    }

    void keptOverWindowChange()
    {
        m_app->setKeyboardFocus(true);
        QQuickWindow other;
        QVERIFY(activate(other));
        QVERIFY(m_app->isKeyboardFocus());
        other.close();
        QVERIFY(activate(*m_window));
        QVERIFY(m_app->isKeyboardFocus());
    }

    void tabKeyIsKnownDuringFocusChange()
    {
        focus("plain");
        bool pressedDuringChange = false;
        connect(m_window.get(), &QQuickWindow::activeFocusItemChanged, this,
                [&] { pressedDuringChange = m_app->isTabKeyPressed(); });
        QTest::keyPress(m_window.get(), Qt::Key_Tab);
        QCOMPARE(m_window->activeFocusItem(), item("text"));
        QVERIFY(pressedDuringChange);
        QVERIFY(m_app->isTabKeyPressed());
        QTest::keyRelease(m_window.get(), Qt::Key_Tab);
        QVERIFY(!m_app->isTabKeyPressed());

        focus("last");
        QVERIFY(!pressedDuringChange);

        // The release of a key that closed its window, or left it, comes to nobody.
        QTest::keyPress(m_window.get(), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(m_app->isTabKeyPressed());
        QQuickWindow other;
        QVERIFY(activate(other));
        QVERIFY(!m_app->isTabKeyPressed());
    }

    void simulatedTabCounts()
    {
        focus("plain");
        bool pressedDuringChange = false;
        connect(item("plain"), &QQuickItem::activeFocusChanged, this,
                [&] { pressedDuringChange = m_app->isTabKeyPressed(); });
        QVERIFY(UIToolKitUtils::instance()->simulateKeyEvent(item("plain"), Qt::Key_Tab));
        QVERIFY(pressedDuringChange);
        QVERIFY(!m_app->isTabKeyPressed());
        QVERIFY2(!m_app->isKeyboardFocus(), "the program's own keys tell nothing of how the user navigates");
    }

    void textScale()
    {
        QSignalSpy spy(m_app, &App::textScaleChanged);
        QCOMPARE(KFont(KFont::BodyPrimary).pixelSize(), 16);
        m_app->setTextScale(1.5);
        QCOMPARE(KFont(KFont::BodyPrimary).pixelSize(), 24);
        m_app->setTextScale(1.5);
        QCOMPARE(spy.count(), 1);

        m_app->setTextScale(1000);
        QCOMPARE(m_app->textScale(), 4.0);
        for (const qreal bad : {0.0, -1.0, qQNaN(), qInf()}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^App: .* is no text scale$"_s));
            m_app->setTextScale(bad);
            QCOMPARE(m_app->textScale(), 4.0);
        }
    }

    void animationsDisabled()
    {
        QVERIFY(!m_app->animationsDisabled());
        QSignalSpy spy(m_app, &App::animationsDisabledChanged);
        m_app->setAnimationsDisabled(true);
        m_app->setAnimationsDisabled(true);
        QVERIFY(m_app->animationsDisabled());
        QCOMPARE(spy.count(), 1);
        m_app->setAnimationsDisabled(false);
    }

    void colorSets()
    {
        const QString name = ThemeManager::instance()->colorSetNames().constFirst();
        for (const QString &theme : {u"dark"_s, u"light"_s}) {
            ThemeManager::instance()->setTheme(theme);
            QVERIFY(m_app->getColorSet(name).isValid());
            QCOMPARE(m_app->getColorSet(name), m_app->getColorSet(name, theme));
            QCOMPARE(m_app->getColorSet(name), m_app->getColorSet(name, u"global"_s));
        }
        QVERIFY(!m_app->getColorSet(QString()).isValid());
    }

    void focusWindow()
    {
        QSignalSpy spy(m_app, &App::focusWindowChanged);
        QQuickWindow other;
        QVERIFY(activate(other));
        QCOMPARE(spy.last().first().value<QWindow *>(), &other);
    }

private:
    App *const m_app = App::instance();
};

QTEST_MAIN(tst_App)
#include "tst_app.moc"
