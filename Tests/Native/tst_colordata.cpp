#include "NativeTest.h"
#include "UTColorData.h"
#include "UTColorSetData.h"
#include "UTEventData.h"

#include <KThemeUtils.h>
#include <ThemeManager.h>

#include <QSignalSpy>

using namespace Qt::StringLiterals;

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

enum Flag { Enabled = 1, Hovered = 2, Focused = 4, Checked = 8, Pressed = 16 };

void setFlags(UTEventData &state, int flags)
{
    state.setEnabled(flags & Enabled);
    state.setHovered(flags & Hovered);
    state.setActiveFocus(flags & Focused);
    state.setChecked(flags & Checked);
    state.setPressed(flags & Pressed);
    // A change takes two turns: one to the summary signal, one to the colours.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

// A colour of the set "plain" with the state that it follows.
struct Plain
{
    explicit Plain(int flags = 0)
    {
        color.setEventData(&state);
        color.setToken(u"plain"_s);
        setFlags(state, flags);
    }
    UTEventData state;
    UTColorData color;
};

} // namespace

KColorSet KThemeUtils::getColorSet(const QByteArray &name, AppThemeType)
{
    ++lookups;
    return hostSets.value(name);
}

class tst_ColorData : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        NativeTest::init();
        hostSets = {{"plain", makeSet("plain", 0)}, {"active", makeSet("active", 100)}};
        KColorSet broken = makeSet("broken", 200);
        broken.setChecked(QColor());
        hostSets.insert("broken", broken);
        lookups = 0;
    }

    void stateRule_data()
    {
        const Table<int, QColor, QColor> row{"flags", "plainOnly", "withActive"};
        const KColorSet p = makeSet("plain", 0);
        const KColorSet a = makeSet("active", 100);
        row("normal", Enabled, p.normal(), p.normal());
        row("focused", Enabled | Focused, p.focused(), p.focused());
        row("checked beats focused", Enabled | Focused | Checked, p.checked(), a.checked());
        row("hovered beats checked", Enabled | Checked | Hovered, p.hovered(), a.hovered());
        row("pressed beats hovered", Enabled | Hovered | Pressed, p.pressed(), p.pressed());
        row("pressed and checked", Enabled | Checked | Hovered | Pressed, p.pressed(), a.pressed());
        row("disabled beats pressed", Pressed | Hovered | Focused, p.disabled(), p.disabled());
        row("disabled and checked", Checked, p.disabled(), a.disabled());
    }

    void stateRule()
    {
        QFETCH(int, flags);
        QFETCH(QColor, plainOnly);
        QFETCH(QColor, withActive);
        Plain plain(flags);
        QCOMPARE(plain.color.color(), plainOnly);
        plain.color.setActiveToken(u"active"_s);
        QCOMPARE(plain.color.color(), withActive);
        plain.color.setActiveToken(QString());
        QCOMPARE(plain.color.color(), plainOnly);
    }

    void withoutStateOrSet()
    {
        UTColorData color;
        QVERIFY(!color.color().isValid());
        color.setToken(u"plain"_s);
        QCOMPARE(color.color(), QColor(Qt::transparent));

        UTEventData state;
        color.setEventData(&state);
        QCOMPARE(color.color(), QColor(Qt::transparent)); // not before the next change
        setFlags(state, Enabled | Checked);
        QCOMPARE(color.color(), hostSets["plain"].checked());

        // A set with one bad colour counts as none, and an active set cannot stand in for it.
        color.setActiveToken(u"active"_s);
        for (const char *name : {"broken", "unknown", ""}) {
            color.setToken(u"plain"_s);
            QCOMPARE(color.color(), hostSets["active"].checked());
            color.setToken(QLatin1StringView(name));
            QCOMPARE(color.color(), QColor(Qt::transparent));
        }
    }

    void twoTurns()
    {
        Plain plain(Enabled);
        auto &[state, color] = plain;
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

    void stateFetchesNothing()
    {
        Plain plain;
        auto &[state, color] = plain;
        color.setActiveToken(u"active"_s);
        color.setThemeType(u"dark"_s);
        const int fetched = lookups;
        QVERIFY(fetched > 0);

        for (int flags = 0; flags < 32; ++flags)
            setFlags(state, flags);
        color.setToken(u"plain"_s);
        color.setActiveToken(u"active"_s);
        color.setThemeType(u"dark"_s);
        QCOMPARE(lookups, fetched);
    }

    void customized()
    {
        Plain plain;
        auto &[state, color] = plain;
        color.setColorCustomized(true);
        color.setColor(Qt::cyan);
        setFlags(state, Enabled | Hovered);
        color.setToken(u"active"_s);
        QCOMPARE(color.color(), QColor(Qt::cyan));

        QSignalSpy painted(&color, &UTColorData::colorChanged);
        color.setColorCustomized(false);
        QCOMPARE(painted.count(), 0);
        setFlags(state, Enabled);
        QCOMPARE(color.color(), hostSets["active"].normal());
    }

    void eventDataGoesAway()
    {
        UTColorData color;
        color.setToken(u"plain"_s);
        UTEventData second;
        {
            UTEventData first;
            color.setEventData(&first);
            first.setEnabled(true);
        }
        QCoreApplication::processEvents(); // what is under way finds nobody
        QVERIFY(!color.eventData());
        color.setThemeType(u"dark"_s);
        QCOMPARE(color.color(), QColor(Qt::transparent));

        // Only the newest state object counts.
        UTEventData third;
        color.setEventData(&second);
        color.setEventData(&third);
        setFlags(third, Enabled);
        setFlags(second, Enabled | Hovered);
        QCOMPARE(color.color(), hostSets["plain"].normal());
    }

    void themeSwitch()
    {
        const Plain plain(Enabled);
        QCOMPARE(plain.color.color(), hostSets["plain"].normal());
        hostSets["plain"].setNormal(Qt::magenta);
        Q_EMIT ThemeManager::instance()->globalThemeChanged();
        QCOMPARE(plain.color.color(), QColor(Qt::magenta));
    }

    void groupHandsOn()
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
            color->setToken(u"plain"_s);
        }
        lookups = 0;
        group.setThemeType(u"dark"_s);
        group.setThemeType(u"dark"_s);
        QCOMPARE(lookups, 4);
        QCOMPARE(themeChanged.count(), 0);
        QTest::ignoreMessage(QtWarningMsg, "Right icon color data was not created.");
        QVERIFY(!group.rightIconColorData());
    }
};

QTEST_GUILESS_MAIN(tst_ColorData)
#include "tst_colordata.moc"
