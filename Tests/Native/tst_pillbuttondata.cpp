#include "UTEventData.h"
#include "UTPillButtonData.h"

#include <App.h>
#include <KThemeUtils.h>
#include <ThemeManager.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// What a component looks like to its data object.
class UTPillButton : public QObject
{
    Q_OBJECT
};

class tst_PillButtonData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void styles_data();
    void styles();
    void highContrast();
    void sizes_data();
    void sizes();
    void iconsFollow();
    void customized();
    void stateReachesColors();
    void wrongPlace();
    void textScale();
    void sourceOfState();
};

using Style = UTButtonStyle::Style;
using Size = UTButtonSize::Size;

// The tokens in the order background, text, border, active background, active icon, active border.
static QStringList tokens(const UTPillButtonData &data)
{
    return {data.backgroundColorData()->token(), data.textColorData()->token(),
            data.borderColorData()->token(),     data.backgroundColorData()->activeToken(),
            data.iconColorData()->activeToken(), data.borderColorData()->activeToken()};
}

void tst_PillButtonData::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_PillButtonData::cleanup()
{
    ThemeManager::instance()->setTheme(QStringLiteral("light"));
    App::instance()->setTextScale(1);
}

void tst_PillButtonData::styles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("border");

    QTest::newRow("all six") << int(UTButtonStyle::Secondary)
                             << "button-secondary-background button-secondary-text button-secondary-border "
                                "button-secondary-active-background button-secondary-active-text "
                                "button-secondary-active-border"
                             << 1;
    QTest::newRow("two") << int(UTButtonStyle::Primary) << "button-primary-background button-primary-text    " << 0;
    QTest::newRow("border without text") << int(UTButtonStyle::SkinTone)
                                         << "button-skinTone-background  button-skinTone-border-inactive   "
                                            "button-skinTone-border-active"
                                         << 1;
    QTest::newRow("last") << int(UTButtonStyle::Clear) << "button-primary-background button-primary-text    " << 0;
    QTest::newRow("none") << int(UTButtonStyle::None) << "     " << 0;
    QTest::newRow("unknown") << 26 << "     " << 0;
    QTest::newRow("negative") << -1 << "     " << 0;
}

void tst_PillButtonData::styles()
{
    QFETCH(int, style);
    UTPillButton button;
    UTPillButtonData data(&button);
    // From another style, so that what is left over of it shows.
    data.setStyle(UTButtonStyle::OutlineJoin);
    data.setStyle(Style(style));
    QTEST(tokens(data).join(u' '), "expected");
    QTEST(data.border(), "border");
    QVERIFY(data.textColorData()->activeToken().isEmpty());
    QVERIFY(data.rightIconColorData()->activeToken().isEmpty());
}

void tst_PillButtonData::highContrast()
{
    UTPillButton button;
    UTPillButtonData before(&button);
    before.setStyle(UTButtonStyle::Accent);

    ThemeManager::instance()->setTheme(QStringLiteral("highContrast"));
    if (!KThemeUtils::isHighContrastEnabled())
        QFAIL("the host does not follow the theme");
    UTPillButtonData data(&button);
    UTEventData state;
    data.setEventData(&state);
    data.setStyle(UTButtonStyle::Secondary);
    QCOMPARE(tokens(data).join(u' '),
             QStringLiteral("button-primary-background button-primary-text button-primary-border "
                            "button-secondary-active-background button-secondary-active-text "
                            "button-secondary-active-border"));
    state.setChecked(true);
    data.setStyle(UTButtonStyle::Join);
    QCOMPARE(tokens(data).join(u' '),
             QStringLiteral("button-ghost-active-background button-ghost-active-text button-primary-border   "));
    data.setStyle(UTButtonStyle::Customized);
    QVERIFY2(!data.textColorData()->colorCustomized(), "a colour of the application's own in high contrast");

    // Asked once for each object.
    before.setStyle(UTButtonStyle::Join);
    QCOMPARE(before.backgroundColorData()->token(), QStringLiteral("button-join-fill-background"));
}

void tst_PillButtonData::sizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QList<int>>("metrics"); // height, radius, left and right padding, spacing, icon, font

    const QList<int> large = {32, 16, 12, 12, 6, 16, 16};
    const QList<int> smallest = {24, 12, 8, 8, 4, 16, 12};
    QTest::newRow("XL") << int(UTButtonSize::XL) << QList<int>{40, 20, 16, 16, 6, 20, 16};
    QTest::newRow("L") << int(UTButtonSize::L) << large;
    QTest::newRow("M") << int(UTButtonSize::M) << large;
    QTest::newRow("S") << int(UTButtonSize::S) << QList<int>{28, 14, 10, 10, 4, 16, 14};
    QTest::newRow("XS") << int(UTButtonSize::XS) << smallest;
    QTest::newRow("XXXS") << int(UTButtonSize::XXXS) << smallest;
    QTest::newRow("none keeps") << int(UTButtonSize::None) << large;
    QTest::newRow("unknown keeps") << 8 << large;
    QTest::newRow("negative keeps") << -3 << large;
}

void tst_PillButtonData::sizes()
{
    QFETCH(int, size);
    UTPillButton button;
    UTPillButtonData data(&button);
    data.setSize(UTButtonSize::L);
    const QSignalSpy heights(&data, &UTPillButtonData::heightChanged);
    const bool grows = size == UTButtonSize::XL || size == UTButtonSize::S || size >= UTButtonSize::XS;
    data.setSize(Size(size));
    const QList<int> metrics = {data.height(),  data.radius(),           data.leftPadding(),     data.rightPadding(),
                                data.spacing(), data.iconSize().width(), data.font().pixelSize()};
    QTEST(metrics, "metrics");
    QCOMPARE(heights.count(), grows && size <= UTButtonSize::XXXS ? 1 : 0);
}

void tst_PillButtonData::iconsFollow()
{
    UTPillButton button;
    UTPillButtonData data(&button);
    data.setStyle(UTButtonStyle::Primary);
    const QSignalSpy themes(&data, &UTPillButtonData::onThemeTypeChanged);
    for (const QString &theme : {u"dark"_s, u"dark"_s, u"global"_s})
        data.setThemeType(theme);
    QCOMPARE(themes.count(), 2);
    const auto icons = [&data] {
        return QStringList{data.iconColorData()->token(), data.rightIconColorData()->token()};
    };
    QCOMPARE(icons(), QStringList({u"button-primary-text"_s, u"button-primary-text"_s}));
    data.setIconColorSetName(u"text-primary"_s);
    QCOMPARE(icons(), QStringList({u"text-primary"_s, u"text-primary"_s}));
    data.setRightIconColorSetName(u"text-secondary"_s);
    QCOMPARE(icons(), QStringList({u"text-primary"_s, u"text-secondary"_s}));
    data.setIconColorSetName({});
    QCOMPARE(icons(), QStringList({u"button-primary-text"_s, u"text-secondary"_s}));
}

void tst_PillButtonData::customized()
{
    UTPillButton button;
    UTEventData state;
    state.setEnabled(true);
    UTPillButtonData data(&button);
    data.setEventData(&state);
    data.setStyle(UTButtonStyle::Ghost);
    const QColor ghost = data.textColorData()->color();
    data.setIconColorCustomized(u"#ff8000"_s);
    QCOMPARE(data.textColorData()->color(), ghost); // not before a refresh
    data.setStyle(UTButtonStyle::Customized);
    QCOMPARE(data.textColorData()->color(), QColor(0xff8000));
    QCOMPARE(data.rightIconColorData()->color(), QColor(0xff8000));
    QVERIFY(data.iconColorData()->colorCustomized());
    data.setIconColorCustomized(u"no colour"_s);
    data.refresh(); // without a word
    QVERIFY(!data.textColorData()->color().isValid());
    data.setStyle(UTButtonStyle::Ghost);
    QVERIFY(!data.textColorData()->colorCustomized());
    QCOMPARE(data.textColorData()->color(), ghost);
    QCOMPARE(data.iconColorData()->color(), ghost);
}

void tst_PillButtonData::stateReachesColors()
{
    UTPillButton button;
    UTPillButtonData data(&button);
    data.setStyle(UTButtonStyle::Secondary);
    QCOMPARE(data.textColorData()->color(), QColor(Qt::transparent));

    UTEventData state;
    data.setEventData(&state);
    state.setEnabled(true);
    const KColorSet set = KThemeUtils::getColorSet("button-secondary-background", AppThemeType::Global);
    QTRY_COMPARE(data.backgroundColorData()->color(), set.normal());
    state.setHovered(true);
    QTRY_COMPARE(data.backgroundColorData()->color(), set.hovered());

    data.setEventData(nullptr);
    QCOMPARE(data.backgroundColorData()->eventData(), nullptr);
    state.setHovered(false); // nobody listens any more
    QCoreApplication::processEvents();
    data.refresh();
}

void tst_PillButtonData::wrongPlace()
{
    QObject other;
    for (QObject *attachee : {&other, static_cast<QObject *>(nullptr)}) {
        QTest::ignoreMessage(QtWarningMsg,
                             "This property can't be used outside it's supported component (UTPillButton).");
        UTPillButtonData data(attachee);
        data.setStyle(UTButtonStyle::Primary);
        data.setSize(UTButtonSize::XL);
        QCOMPARE(tokens(data).join(QString()), QString());
        QCOMPARE(data.height(), 0);
    }
}

void tst_PillButtonData::textScale()
{
    UTPillButton button;
    UTPillButtonData data(&button);
    data.setSize(UTButtonSize::XL);
    App::instance()->setTextScale(2);
    QCOMPARE(data.font().pixelSize(), 32);
    QCOMPARE(data.height(), 40);
}

// Has what UTEventData looks for, except for the focus.
class Source : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool enabled MEMBER enabled NOTIFY changed)
    Q_PROPERTY(bool hovered MEMBER hovered NOTIFY changed)
    Q_PROPERTY(bool checked MEMBER checked NOTIFY changed)
    Q_PROPERTY(bool pressed MEMBER pressed CONSTANT)

public:
    bool enabled = true;
    bool hovered = false;
    bool checked = false;
    bool pressed = true;

Q_SIGNALS:
    void changed();
};

void tst_PillButtonData::sourceOfState()
{
    UTEventData state;
    state.setActiveFocus(true);
    {
        Source source;
        state.setSource(&source);
        QVERIFY(state.enabled() && state.pressed() && !state.hovered());
        QVERIFY2(state.activeFocus(), "the source has nothing to say of it");
        QSignalSpy summary(&state, &UTEventData::eventDataChanged);
        QVERIFY(source.setProperty("hovered", true));
        QVERIFY(state.hovered());
        QTRY_VERIFY(summary.count() > 0);

        Source next;
        next.enabled = false;
        state.setSource(&next);
        QVERIFY(!state.enabled() && !state.hovered());
        source.setProperty("checked", true);
        QVERIFY(!state.checked());
    }
    QCOMPARE(state.source(), nullptr);
    QVERIFY(state.pressed()); // as the last source left it
}

QTEST_MAIN(tst_PillButtonData)
#include "tst_pillbuttondata.moc"
