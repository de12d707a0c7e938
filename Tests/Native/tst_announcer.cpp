#include "AccessibleMonitor.h"
#include "Announcer.h"
#include "NativeTest.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
Window {
    width: 200; height: 200
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

class tst_Announcer : public SceneTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        NativeTest::init();
        if (!AccessibleMonitor::isAvailable())
            QSKIP("built without access to the accessibility events");
        open(sceneSource);
    }

    void announcedOnce()
    {
        QSignalSpy spy(Announcer::instance(), &Announcer::announced);
        announce(item("mute"), u" Checked\n"_s);
        announce(nullptr, u"For nobody"_s);
        announce(item("mute"), u" \n\t"_s);
        announce(item("mute"), QString());
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.first().first().toString(), u"Checked"_s);
        QCOMPARE(spy.first().at(1).value<QObject *>(), item("mute"));
    }

    void monitorFollowsFocus()
    {
        AccessibleMonitor monitor;
        QSignalSpy spy(&monitor, &AccessibleMonitor::focusChanged);
        focus("check");
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

    void monitorLogsChanges()
    {
        focus("check");
        AccessibleMonitor monitor;
        const QAbstractItemModelTester tester(&monitor);
        focus("other");
        QTRY_VERIFY(monitor.count() > 0);
        QVERIFY(rows(monitor).last().startsWith(u"Focus: Button \"Other\": "_s));
        monitor.clear();
        item("check")->setProperty("checked", true);
        QTRY_COMPARE(rows(monitor).size(), 1);
        QVERIFY(rows(monitor).constFirst().startsWith(u"State: CheckBox \"Save\": "_s));
        QVERIFY(rows(monitor).constFirst().contains(u"checked"_s));
    }

    void monitorLogsAnnouncements()
    {
        AccessibleMonitor monitor;
        monitor.clear();
        announce(item("check"), u"Checked"_s);
        QCOMPARE(rows(monitor), QStringList{u"Announcement: CheckBox \"Save\": Checked"_s});
    }

    void monitorStops()
    {
        qmlRegisterType<AccessibleMonitor>("MonitorTest", 1, 0, "AccessibleMonitor");
        const auto monitor =
            create<AccessibleMonitor>(m_engine, "import MonitorTest; AccessibleMonitor { watching: false }");
        monitor->clear();
        announce(item("check"), u"unheard"_s);
        focus("other");
        QCOMPARE(monitor->count(), 0);
        monitor->setWatching(true);
        announce(item("check"), u"heard"_s);
        QCOMPARE(rows(*monitor).last(), u"Announcement: CheckBox \"Save\": heard"_s);
        monitor->setWatching(false);
        announce(item("check"), u"unheard"_s);
        QCOMPARE(monitor->count(), 1);
    }

    void monitorPassesEventsOn()
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

    void monitorIsBounded()
    {
        AccessibleMonitor monitor;
        const QAbstractItemModelTester tester(&monitor);
        for (int i = 0; i <= AccessibleMonitor::maximumRows; ++i)
            announce(item("check"), QString::number(i));
        QCOMPARE(monitor.count(), AccessibleMonitor::maximumRows);
        QVERIFY(rows(monitor).constFirst().endsWith(u" 1"_s));
    }

private:
    static QStringList rows(const AccessibleMonitor &monitor)
    {
        QStringList result;
        for (int row = 0; row < monitor.count(); ++row) {
            const QModelIndex index = monitor.index(row);
            QStringList parts;
            for (int role : {AccessibleMonitor::KindRole, AccessibleMonitor::ItemRole, AccessibleMonitor::TextRole})
                parts << index.data(role).toString();
            result << parts.join(u": "_s);
        }
        return result;
    }

    static void announce(QObject *item, const QString &text) { Announcer::instance()->announce(item, text); }
};

QTEST_MAIN(tst_Announcer)
#include "tst_announcer.moc"
