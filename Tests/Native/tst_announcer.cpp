#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "AccessibleMonitor.h"
#include "Announcer.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
Window {
    width: 200; height: 200
    visible: true
    Item {
        objectName: "check"
        property bool checked: false
        activeFocusOnTab: true
        Accessible.role: Accessible.CheckBox
        Accessible.name: "Save"
        Accessible.description: "Saves all"
        Accessible.checkable: true
        Accessible.checked: checked
        Accessible.focusable: true
        Item { objectName: "mute" }
    }
    Item {
        objectName: "other"
        activeFocusOnTab: true
        Accessible.role: Accessible.Button
        Accessible.name: "Other"
        Accessible.focusable: true
    }
}
)";

int handlerCalls = 0;
void countingHandler(QAccessibleEvent *)
{
    ++handlerCalls;
}

} // namespace

class tst_Announcer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void announcedOnce();
    void monitorFollowsFocus();
    void monitorLogsChanges();
    void monitorLogsAnnouncements();
    void monitorStops();
    void monitorPassesEventsOn();
    void monitorIsBounded();

private:
    QQuickItem *item(const char *name) const;
    static QStringList rows(const AccessibleMonitor &monitor);

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

void tst_Announcer::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    if (!AccessibleMonitor::isAvailable())
        QSKIP("built without access to the accessibility events");
    QQmlComponent component(&m_engine);
    component.setData(sceneSource, {});
    m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_Announcer::cleanup()
{
    m_window.reset();
}

QQuickItem *tst_Announcer::item(const char *name) const
{
    return m_window->findChild<QQuickItem *>(QLatin1StringView(name));
}

QStringList tst_Announcer::rows(const AccessibleMonitor &monitor)
{
    QStringList result;
    for (int row = 0; row < monitor.count(); ++row) {
        const QModelIndex index = monitor.index(row);
        result.append(u"%1: %2: %3"_s.arg(index.data(AccessibleMonitor::KindRole).toString(),
                                          index.data(AccessibleMonitor::ItemRole).toString(),
                                          index.data(AccessibleMonitor::TextRole).toString()));
    }
    return result;
}

void tst_Announcer::announcedOnce()
{
    QSignalSpy spy(Announcer::instance(), &Announcer::announced);
    Announcer::instance()->announce(item("mute"), u" Checked\n"_s);
    Announcer::instance()->announce(nullptr, u"For nobody"_s);
    Announcer::instance()->announce(item("mute"), u" \n\t"_s);
    Announcer::instance()->announce(item("mute"), QString());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.first().first().toString(), u"Checked"_s);
    QCOMPARE(spy.first().at(1).value<QObject *>(), item("mute"));
}

void tst_Announcer::monitorFollowsFocus()
{
    AccessibleMonitor monitor;
    QSignalSpy spy(&monitor, &AccessibleMonitor::focusChanged);
    item("check")->forceActiveFocus();
    QTRY_COMPARE(monitor.focusName(), u"Save"_s);
    QVERIFY(spy.count() >= 1);
    QCOMPARE(monitor.focusRole(), u"CheckBox"_s);
    QCOMPARE(monitor.focusDescription(), u"Saves all"_s);
    QVERIFY(monitor.focusStates().contains(u"focused"_s));
    QVERIFY(!monitor.focusStates().contains(u"checked"_s));
    item("check")->setProperty("checked", true);
    QTRY_VERIFY(monitor.focusStates().contains(u"checked"_s));

    // One that comes later knows the focus at once.
    const AccessibleMonitor late;
    QCOMPARE(late.focusName(), u"Save"_s);
}

void tst_Announcer::monitorLogsChanges()
{
    item("check")->forceActiveFocus();
    AccessibleMonitor monitor;
    const QAbstractItemModelTester tester(&monitor);
    item("other")->forceActiveFocus();
    QTRY_VERIFY(monitor.count() > 0);
    QVERIFY(rows(monitor).last().startsWith(u"Focus: Button \"Other\": "_s));
    monitor.clear();
    item("check")->setProperty("checked", true);
    QTRY_COMPARE(rows(monitor).size(), 1);
    QVERIFY(rows(monitor).constFirst().startsWith(u"State: CheckBox \"Save\": "_s));
    QVERIFY(rows(monitor).constFirst().contains(u"checked"_s));
}

void tst_Announcer::monitorLogsAnnouncements()
{
    AccessibleMonitor monitor;
    monitor.clear();
    Announcer::instance()->announce(item("check"), u"Checked"_s);
    QCOMPARE(rows(monitor), QStringList{u"Announcement: CheckBox \"Save\": Checked"_s});
}

void tst_Announcer::monitorStops()
{
    QQmlComponent component(&m_engine);
    qmlRegisterType<AccessibleMonitor>("MonitorTest", 1, 0, "AccessibleMonitor");
    component.setData("import MonitorTest; AccessibleMonitor { watching: false }", {});
    const std::unique_ptr<AccessibleMonitor> monitor(qobject_cast<AccessibleMonitor *>(component.create()));
    QVERIFY2(monitor, qPrintable(component.errorString()));
    monitor->clear();
    Announcer::instance()->announce(item("check"), u"unheard"_s);
    item("other")->forceActiveFocus();
    QCOMPARE(monitor->count(), 0);
    monitor->setWatching(true);
    Announcer::instance()->announce(item("check"), u"heard"_s);
    QCOMPARE(rows(*monitor).last(), u"Announcement: CheckBox \"Save\": heard"_s);
    monitor->setWatching(false);
    Announcer::instance()->announce(item("check"), u"unheard"_s);
    QCOMPARE(monitor->count(), 1);
}

void tst_Announcer::monitorPassesEventsOn()
{
    const auto original = QAccessible::installUpdateHandler(countingHandler);
    {
        const AccessibleMonitor first;
        const AccessibleMonitor second;
        handlerCalls = 0;
        item("check")->setProperty("checked", true);
        QCOMPARE(handlerCalls, 1);
        QCOMPARE(first.count(), 1);
        QCOMPARE(second.count(), 1);
    }
    item("check")->setProperty("checked", false);
    QCOMPARE(handlerCalls, 2);
    QVERIFY(QAccessible::installUpdateHandler(original) == &countingHandler);
}

void tst_Announcer::monitorIsBounded()
{
    AccessibleMonitor monitor;
    const QAbstractItemModelTester tester(&monitor);
    for (int i = 0; i <= AccessibleMonitor::maximumRows; ++i)
        Announcer::instance()->announce(item("check"), QString::number(i));
    QCOMPARE(monitor.count(), AccessibleMonitor::maximumRows);
    QVERIFY(rows(monitor).constFirst().endsWith(u" 1"_s));
}

QTEST_MAIN(tst_Announcer)
#include "tst_announcer.moc"
