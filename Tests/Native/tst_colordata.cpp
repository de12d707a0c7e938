#include "UTColorData.h"
#include "UTColorSetData.h"
#include "UTEventData.h"

#include <KThemeUtils.h>
#include <ThemeManager.h>

#include <QSignalSpy>
#include <QTest>

// A host of this test's own, in place of the library's: it knows a few sets by name and counts look-ups.
namespace {

int lookups = 0;
QHash<QByteArray, KColorSet> hostSets;

// Six colours that differ from each other and from those of every other base.
KColorSet makeSet(const char *name, int base)
{
    KColorSet::Colors colors;
    for (QColor &color : colors)
        color = QColor(base++, 0, 0);
    return KColorSet(QLatin1StringView(name), colors);
}

void settle()
{
    // A state change takes two turns: one to the summary signal, one to the colours.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

} // namespace

KColorSet KThemeUtils::getColorSet(const QByteArray &name, AppThemeType)
{
    ++lookups;
    return hostSets.value(name);
}

class tst_ColorData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void stateRule_data();
    void stateRule();
    void withoutStateOrSet();
    void twoTurns();
    void stateFetchesNothing();
    void activeToken();
    void customized();
    void eventDataGoesAway();
    void themeSwitch();
    void groupHandsOn();
    void groupWarnings();
};

void tst_ColorData::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    hostSets = {{"plain", makeSet("plain", 0)}, {"active", makeSet("active", 100)}};
    KColorSet broken = makeSet("broken", 200);
    broken.setChecked(QColor());
    hostSets.insert("broken", broken);
    lookups = 0;
}

enum Flag { Enabled = 1, Hovered = 2, Focused = 4, Checked = 8, Pressed = 16 };

static void setFlags(UTEventData &state, int flags)
{
    state.setEnabled(flags & Enabled);
    state.setHovered(flags & Hovered);
    state.setActiveFocus(flags & Focused);
    state.setChecked(flags & Checked);
    state.setPressed(flags & Pressed);
    settle();
}

void tst_ColorData::stateRule_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QColor>("plainOnly");
    QTest::addColumn<QColor>("withActive");

    const KColorSet p = makeSet("plain", 0);
    const KColorSet a = makeSet("active", 100);
    QTest::newRow("normal") << int(Enabled) << p.normal() << p.normal();
    QTest::newRow("focused") << (Enabled | Focused) << p.focused() << p.focused();
    QTest::newRow("checked beats focused") << (Enabled | Focused | Checked) << p.checked() << a.checked();
    QTest::newRow("hovered beats checked") << (Enabled | Checked | Hovered) << p.hovered() << a.hovered();
    QTest::newRow("pressed beats hovered") << (Enabled | Hovered | Pressed) << p.pressed() << p.pressed();
    QTest::newRow("pressed and checked") << (Enabled | Checked | Hovered | Pressed) << p.pressed() << a.pressed();
    QTest::newRow("disabled beats pressed") << (Pressed | Hovered | Focused) << p.disabled() << p.disabled();
    QTest::newRow("disabled and checked") << int(Checked) << p.disabled() << a.disabled();
}

void tst_ColorData::stateRule()
{
    QFETCH(int, flags);
    QFETCH(QColor, plainOnly);
    QFETCH(QColor, withActive);

    UTEventData state;
    UTColorData color;
    color.setEventData(&state);
    color.setToken(QStringLiteral("plain"));
    setFlags(state, flags);
    QCOMPARE(color.color(), plainOnly);

    color.setActiveToken(QStringLiteral("active"));
    QCOMPARE(color.color(), withActive);
}

void tst_ColorData::withoutStateOrSet()
{
    UTColorData color;
    QVERIFY(!color.color().isValid());
    color.setToken(QStringLiteral("plain"));
    QCOMPARE(color.color(), QColor(Qt::transparent));

    UTEventData state;
    color.setEventData(&state);
    QCOMPARE(color.color(), QColor(Qt::transparent)); // not before the next change
    setFlags(state, Enabled | Checked);
    QCOMPARE(color.color(), hostSets["plain"].checked());

    // A set with one bad colour counts as none, and an active set cannot stand in for it.
    color.setActiveToken(QStringLiteral("active"));
    for (const char *name : {"broken", "unknown", ""}) {
        color.setToken(QStringLiteral("plain"));
        QCOMPARE(color.color(), hostSets["active"].checked());
        color.setToken(QLatin1StringView(name));
        QCOMPARE(color.color(), QColor(Qt::transparent));
    }
}

void tst_ColorData::twoTurns()
{
    UTEventData state;
    state.setEnabled(true);
    UTColorData color;
    color.setEventData(&state);
    color.setToken(QStringLiteral("plain"));
    settle();
    const QColor before = color.color();
    QCOMPARE(before, hostSets["plain"].normal());

    QSignalSpy summary(&state, &UTEventData::eventDataChanged);
    QSignalSpy painted(&color, &UTColorData::colorChanged);
    state.setHovered(true);
    state.setHovered(true); // no change, no signal
    state.setPressed(true);
    QCOMPARE(summary.count(), 0);
    QCoreApplication::sendPostedEvents(&state, QEvent::MetaCall);
    QCOMPARE(summary.count(), 2);
    QCOMPARE(color.color(), before);
    QCoreApplication::sendPostedEvents(&color, QEvent::MetaCall);
    QCOMPARE(color.color(), hostSets["plain"].pressed());
    QCOMPARE(painted.count(), 1); // the hover in between is never painted
}

void tst_ColorData::stateFetchesNothing()
{
    UTEventData state;
    UTColorData color;
    color.setEventData(&state);
    color.setToken(QStringLiteral("plain"));
    color.setActiveToken(QStringLiteral("active"));
    color.setThemeType(QStringLiteral("dark"));
    const int fetched = lookups;
    QVERIFY(fetched > 0);

    for (int flags = 0; flags < 32; ++flags)
        setFlags(state, flags);
    color.setToken(QStringLiteral("plain"));
    color.setActiveToken(QStringLiteral("active"));
    color.setThemeType(QStringLiteral("dark"));
    QCOMPARE(lookups, fetched);
}

void tst_ColorData::activeToken()
{
    UTEventData state;
    UTColorData color;
    color.setEventData(&state);
    color.setToken(QStringLiteral("plain"));
    color.setActiveToken(QStringLiteral("active"));
    setFlags(state, Enabled | Checked);
    QCOMPARE(color.color(), hostSets["active"].checked());
    color.setActiveToken(QString());
    QCOMPARE(color.color(), hostSets["plain"].checked());
}

void tst_ColorData::customized()
{
    UTEventData state;
    UTColorData color;
    color.setEventData(&state);
    color.setToken(QStringLiteral("plain"));
    color.setColorCustomized(true);
    color.setColor(Qt::cyan);
    setFlags(state, Enabled | Hovered);
    color.setToken(QStringLiteral("active"));
    QCOMPARE(color.color(), QColor(Qt::cyan));

    QSignalSpy painted(&color, &UTColorData::colorChanged);
    color.setColorCustomized(false);
    QCOMPARE(painted.count(), 0);
    setFlags(state, Enabled);
    QCOMPARE(color.color(), hostSets["active"].normal());
}

void tst_ColorData::eventDataGoesAway()
{
    UTColorData color;
    color.setToken(QStringLiteral("plain"));
    UTEventData second;
    {
        UTEventData first;
        color.setEventData(&first);
        first.setEnabled(true);
    }
    settle();
    QVERIFY(!color.eventData());
    color.setThemeType(QStringLiteral("dark"));
    QCOMPARE(color.color(), QColor(Qt::transparent));

    // Only the newest state object counts.
    UTEventData third;
    color.setEventData(&second);
    color.setEventData(&third);
    setFlags(third, Enabled);
    setFlags(second, Enabled | Hovered);
    QCOMPARE(color.color(), hostSets["plain"].normal());
}

void tst_ColorData::themeSwitch()
{
    UTEventData state;
    state.setEnabled(true);
    UTColorData color;
    color.setEventData(&state);
    color.setToken(QStringLiteral("plain"));
    QCOMPARE(color.color(), hostSets["plain"].normal());

    hostSets["plain"].setNormal(Qt::magenta);
    Q_EMIT ThemeManager::instance()->globalThemeChanged();
    QCOMPARE(color.color(), QColor(Qt::magenta));
}

void tst_ColorData::groupHandsOn()
{
    UTColorSetData group;
    UTEventData state;
    UTColorData *const colors[] = {group.backgroundColorData(), group.borderColorData(), group.textColorData(),
                                   group.iconColorData()};
    QSignalSpy changed(&group, &UTColorSetData::eventDataChanged);
    QSignalSpy themeChanged(&group, &UTColorSetData::onThemeTypeChanged);
    group.setEventData(&state);
    group.setEventData(&state);
    QCOMPARE(changed.count(), 1);
    for (UTColorData *color : colors) {
        QCOMPARE(color->parent(), &group);
        QCOMPARE(color->eventData(), &state);
        color->setToken(QStringLiteral("plain"));
    }
    lookups = 0;
    group.setThemeType(QStringLiteral("dark"));
    group.setThemeType(QStringLiteral("dark"));
    QCOMPARE(lookups, 4);
    QCOMPARE(themeChanged.count(), 0);
}

void tst_ColorData::groupWarnings()
{
    UTColorSetData group;
    QTest::ignoreMessage(QtWarningMsg, "Right icon color data was not created.");
    QVERIFY(!group.rightIconColorData());
}

QTEST_GUILESS_MAIN(tst_ColorData)
#include "tst_colordata.moc"
