#include "EventFilter.h"
#include "NativeTest.h"
#include "PostedEventDispatcher.h"
#include "UTEventFilterData.h"
#include "UTKeyEventData.h"
#include "UTShortcutOverride.h"

#include <QShortcut>
#include <QSignalSpy>
#include <QThread>

#include <private/qquicktextinput_p.h>

using namespace Qt::StringLiterals;

// The components that the data objects want to be attached to, by their names.
class UTShortcutsLabel : public QQuickItem
{
    Q_OBJECT

public:
    void keyPressEvent(QKeyEvent *) override { ++presses; }
    void mousePressEvent(QMouseEvent *) override {}
    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }

    int presses = 0;
    int releases = 0;
};

class UTTextFieldBase : public QQuickTextInput
{
    Q_OBJECT
};

class UTTextAreaBase_QMLTYPE_7 : public QQuickTextInput
{
    Q_OBJECT
};

//! Real events, through a window, to items and to what filters them.
class tst_Events : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        NativeTest::init();
        m_window.resize(200, 200);
        QVERIFY(activate(m_window));
    }

    void cleanup() { m_item.reset(); }

    void keySequences_data()
    {
        const Table<QStringList, int, Qt::KeyboardModifiers, bool> row{"sequences", "key", "modifiers", "taken"};
        const QStringList arrows = {u"Alt+Down"_s, u"Alt+Up"_s};
        row("first", arrows, Qt::Key_Down, Qt::AltModifier, true);
        row("second", arrows, Qt::Key_Up, Qt::AltModifier, true);
        row("one modifier more", arrows, Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier, false);
        row("keypad", arrows, Qt::Key_Down, Qt::AltModifier | Qt::KeypadModifier, false);
        row("no modifier", arrows, Qt::Key_Down, Qt::NoModifier, false);
        row("none", {}, Qt::Key_Down, Qt::AltModifier, false);
        row("first combination counts", {u"Ctrl+K, Ctrl+L"_s}, Qt::Key_K, Qt::ControlModifier, true);
        row("second does not", {u"Ctrl+K, Ctrl+L"_s}, Qt::Key_L, Qt::ControlModifier, false);
        row("empty matches no key", {u""_s}, 0, Qt::NoModifier, true);
        row("nonsense matches no key", {u"Ctrl+nonsense"_s}, 0, Qt::NoModifier, true);
        row("empty matches nothing else", {u""_s, u"nonsense"_s}, Qt::Key_unknown, Qt::NoModifier, false);
        row("modifiers alone", {u""_s}, 0, Qt::ControlModifier, false);
    }

    void keySequences()
    {
        QFETCH(QStringList, sequences);
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(bool, taken);
        auto *item = show<UTShortcutsLabel>();
        auto *data = UTEventFilterData::qmlAttachedProperties(item);
        QSignalSpy reported(data, &UTEventFilterData::kKeyPressEventChanged);
        data->setProcessKeySequences(sequences);
        // As the platform sends it: the override first, which must not be reported.
        QKeyEvent override(QEvent::ShortcutOverride, key, modifiers);
        override.ignore();
        QCoreApplication::sendEvent(&m_window, &override);
        QCOMPARE(override.isAccepted(), taken);
        QCOMPARE(reported.count(), 0);
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&m_window, &press);
        QCOMPARE(reported.count(), int(taken));
        QCOMPARE(item->presses, int(!taken));
        QCOMPARE(data->kKeyPressEvent()->key(), key); // copied in either case
        QCOMPARE(data->kKeyPressEvent()->modifiers(), modifiers.toInt());
    }

    void focusAndRelease()
    {
        auto *item = show<UTShortcutsLabel>();
        auto *data = UTEventFilterData::qmlAttachedProperties(item);
        QSignalSpy focused(data, &UTEventFilterData::focusInEvent);
        QSignalSpy released(data, &UTEventFilterData::mouseLeftButtonReleased);
        for (const bool listen : {false, true}) {
            data->setListenFocusIn(listen);
            data->setListenMouseRelease(listen);
            item->setFocus(false);
            item->forceActiveFocus(Qt::BacktabFocusReason);
            QTest::mouseClick(&m_window, Qt::RightButton, {}, {50, 50});
            QCOMPARE(released.count(), 0);
            QTest::mouseClick(&m_window, Qt::LeftButton, {}, {50, 50});
            QCOMPARE(released.count(), int(listen));
            QCOMPARE(focused.count(), int(listen));
        }
        QCOMPARE(focused[0][0].value<Qt::FocusReason>(), Qt::BacktabFocusReason);
        QCOMPARE(item->releases, 4); // nothing is kept from the item
    }

    void shortcutLabel()
    {
        auto *item = show<UTShortcutsLabel>();
        auto *data = UTKeyEventData::qmlAttachedProperties(item);
        QSignalSpy pressed(data, &UTKeyEventData::kKeyPressEventChanged);
        QSignalSpy released(data, &UTKeyEventData::kKeyReleaseEventChanged);
        QTest::keyClick(&m_window, Qt::Key_A);
        QCOMPARE(item->presses, 1);
        const auto perKey = pressed.count(); // the shortcut override counts too
        QVERIFY(perKey >= 1);
        data->setIgnoreKeyEvents(true);
        QTest::keyClick(&m_window, Qt::Key_B);
        QCOMPARE(pressed.count(), 2 * perKey);
        QCOMPARE(released.count(), 2);
        QCOMPARE(item->presses, 1);
        QCOMPARE(data->kKeyPressEvent()->text(), u"b"_s);
        QCOMPARE(data->kKeyReleaseEvent()->key(), int(Qt::Key_B));
        QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_K, Qt::ControlModifier);
        override.ignore();
        QCoreApplication::sendEvent(item, &override);
        QVERIFY(override.isAccepted());
    }

    void misplaced()
    {
        auto *item = show<QQuickItem>();
        expectMisplaced("UTShortcutsLabel");
        QSignalSpy pressed(UTKeyEventData::qmlAttachedProperties(item), &UTKeyEventData::kKeyPressEventChanged);
        QTest::keyClick(&m_window, Qt::Key_A);
        QCOMPARE(pressed.count(), 0);
        for (QObject *attachee : {static_cast<QObject *>(item), static_cast<QObject *>(nullptr)}) {
            QTest::ignoreMessage(QtWarningMsg, "This property can't be used outside it's supported component!.");
            const std::unique_ptr<QObject> override(new UTShortcutOverride(attachee));
        }
        const UTEventFilterData nothingToWatch(nullptr);
        QVERIFY(!VisualUtils::installEventFilter(nullptr, QEvent::Timer, [](QEvent *) { return true; }));
        QVERIFY(!VisualUtils::installEventFilter(item, QEvent::Timer, {}));
    }

    void altGr_data()
    {
        const Table<int, Qt::KeyboardModifiers, QString, bool> row{"key", "modifiers", "text", "typed"};
        const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
        row("character", Qt::Key_Q, altGr, "@", true);
        row("shifted", Qt::Key_Q, altGr | Qt::ShiftModifier, "Ω", true);
        row("surrogate pair", Qt::Key_Q, altGr, "😀", true);
        row("half a surrogate pair", Qt::Key_Q, altGr, QString(QChar(0xD83D)), false);
        row("no text", Qt::Key_F1, altGr, QString(), false);
        row("control character", Qt::Key_Q, altGr, "\x11", false);
        row("two characters", Qt::Key_Q, altGr, "ab", false);
        row("control alone", Qt::Key_Q, Qt::ControlModifier, "q", false);
    }

    void altGr()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, text);
        QFETCH(bool, typed);

        UTShortcutOverride::qmlAttachedProperties(show<UTTextAreaBase_QMLTYPE_7>());
        auto *field = show<UTTextFieldBase>();
        UTShortcutOverride::qmlAttachedProperties(field);
        const QShortcut shortcut(QKeySequence(modifiers | Qt::Key(key)), &m_window);
        const QSignalSpy activated(&shortcut, &QShortcut::activated);
        QTest::simulateEvent(&m_window, true, key, modifiers, text, false);
        QCOMPARE(activated.count(), int(!typed));
        QCOMPARE(field->text(), typed ? text : QString());
    }

    void filters()
    {
        QObject watched, other;
        int calls = 0;
        const auto count = [&](QEvent *) { return ++calls > 0; };
        const auto send = [](QObject &to, QEvent::Type type) {
            QEvent event(type);
            return QCoreApplication::sendEvent(&to, &event);
        };
        QPointer<VisualUtils::EventFilter> once = VisualUtils::installEventFilter(
            &watched, {QEvent::Show, QEvent::Hide},
            [&](QEvent *event) {
                // An event that the handler causes is not its business any more.
                send(watched, QEvent::Show);
                return count(event);
            },
            true);
        other.installEventFilter(once);
        QVERIFY(!send(watched, QEvent::UpdateRequest) && !send(other, QEvent::Show));
        QVERIFY(send(watched, QEvent::Hide));
        send(watched, QEvent::Show);
        QCOMPARE(calls, 1);
        QTRY_VERIFY(!once);

        const std::unique_ptr<QObject> all(VisualUtils::installEventFilter(&watched, QList<int>(), count));
        QVERIFY(all && send(watched, QEvent::UpdateRequest));
        QCOMPARE(calls, 2);
    }

    void destroyedUnderTheFilter()
    {
        // Each deletes the item while one of its own events is under way.
        const auto destroy = [this] { m_item.reset(); };
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        auto *item = show<UTShortcutsLabel>();
        VisualUtils::installEventFilter(item, QEvent::KeyPress, [destroy](QEvent *) {
            destroy();
            return false;
        });
        QCoreApplication::sendEvent(item, &press);
        QVERIFY(!m_item);

        item = show<UTShortcutsLabel>();
        connect(UTKeyEventData::qmlAttachedProperties(item), &UTKeyEventData::kKeyPressEventChanged, this, destroy);
        QCoreApplication::sendEvent(item, &press);
        QVERIFY(!m_item);

        item = show<UTShortcutsLabel>();
        auto *data = UTEventFilterData::qmlAttachedProperties(item);
        data->setProcessKeySequences({u"A"_s});
        connect(data, &UTEventFilterData::kKeyPressEventChanged, this, destroy);
        QCoreApplication::sendEvent(item, &press);
        QVERIFY(!m_item);
    }

    void dispatcher()
    {
        QStringList order;
        auto target = std::make_unique<QObject>();
        QObject lasting;
        EventManagment::post(&lasting, [&] { order << u"first"_s; });
        EventManagment::post(target.get(), [&] { order << u"gone"_s; });
        EventManagment::post(nullptr, [&] { order << u"null"_s; });
        EventManagment::post(&lasting, {});
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { EventManagment::post(&lasting, [&] { order << u"other thread"_s; }); }));
        thread->start();
        QVERIFY(thread->wait());
        EventManagment::post(&lasting, [&] { order << u"last"_s; });
        target.reset();
        QVERIFY(order.isEmpty());
        QTRY_COMPARE(order, QStringList({u"first"_s, u"other thread"_s, u"last"_s}));
    }

private:
    template<typename T>
    T *show()
    {
        auto *item = new T;
        m_item.reset(item);
        item->setParentItem(m_window.contentItem());
        item->setSize({100, 100});
        item->setAcceptedMouseButtons(Qt::AllButtons);
        item->forceActiveFocus(Qt::TabFocusReason);
        return item;
    }

    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_item;
};

QTEST_MAIN(tst_Events)
#include "tst_events.moc"
