#include "DataTest.h"
#include "UTEventData.h"
#include "UTPillButtonData.h"

#include <KThemeUtils.h>

#include <QSignalSpy>

using namespace Qt::StringLiterals;

// The tokens in the order background, text, border, active background, active icon, active border.
static QString tokens(const UTPillButtonData &data)
{
    const QStringList names = {data.backgroundColorData()->token(), data.textColorData()->token(),
                               data.borderColorData()->token(),     data.backgroundColorData()->activeToken(),
                               data.iconColorData()->activeToken(), data.borderColorData()->activeToken()};
    return names.join(u' ');
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

class tst_PillButtonData : public DataTest
{
    Q_OBJECT

private Q_SLOTS:
    void styles_data()
    {
        const Table<int, QString, int> row{"style", "expected", "border"};
        row("all six", UTButtonStyle::Secondary,
            "button-secondary-background button-secondary-text button-secondary-border "
            "button-secondary-active-background button-secondary-active-text button-secondary-active-border",
            1);
        row("border without text", UTButtonStyle::SkinTone,
            "button-skinTone-background  button-skinTone-border-inactive   button-skinTone-border-active", 1);
        row("last", UTButtonStyle::Clear, "button-primary-background button-primary-text    ", 0);
        for (int odd : {int(UTButtonStyle::None), 26, -1})
            row(QString::number(odd), odd, "     ", 0);
    }

    void styles()
    {
        QFETCH(int, style);
        Attached<UTPillButtonData> data;
        // From another style, so that what is left over of it shows.
        data->setStyle(UTButtonStyle::OutlineJoin);
        data->setStyle(UTButtonStyle::Style(style));
        QTEST(tokens(*data), "expected");
        QTEST(data->border(), "border");
        QVERIFY(data->textColorData()->activeToken().isEmpty());
        QVERIFY(data->rightIconColorData()->activeToken().isEmpty());
    }

    void highContrast()
    {
        Attached<UTPillButtonData> before;
        before->setStyle(UTButtonStyle::Accent);

        ThemeManager::instance()->setTheme(u"highContrast"_s);
        if (!KThemeUtils::isHighContrastEnabled())
            QFAIL("the host does not follow the theme");
        Attached<UTPillButtonData> data;
        UTEventData state;
        data->setEventData(&state);
        data->setStyle(UTButtonStyle::Secondary);
        QCOMPARE(tokens(*data),
                 u"button-primary-background button-primary-text button-primary-border "
                 "button-secondary-active-background button-secondary-active-text "
                 "button-secondary-active-border"_s);
        state.setChecked(true);
        data->setStyle(UTButtonStyle::Join);
        QCOMPARE(tokens(*data), u"button-ghost-active-background button-ghost-active-text button-primary-border   "_s);
        data->setStyle(UTButtonStyle::Customized);
        QVERIFY2(!data->textColorData()->colorCustomized(), "a colour of the application's own in high contrast");

        // Asked once for each object.
        before->setStyle(UTButtonStyle::Join);
        QCOMPARE(before->backgroundColorData()->token(), u"button-join-fill-background"_s);
    }

    void sizes_data()
    {
        const Table<int, QVariantList, int> row{"size", "metrics", "fontSize"};
        const QSize icon(16, 16);
        row("first", 1, {40, 20, 16, 16, 6, QSize(20, 20)}, 16);
        row("S", 4, {28, 14, 10, 10, 4, icon}, 14);
        row("last", 7, {24, 12, 8, 8, 4, icon}, 12);
        for (int unknown : {0, 8, -3})
            row(QString::number(unknown), unknown, {32, 16, 12, 12, 6, icon}, 16); // stays L
    }

    void sizes()
    {
        QFETCH(int, size);
        Attached<UTPillButtonData> data;
        data->setSize(UTButtonSize::L);
        const QSignalSpy heights(&*data, &UTPillButtonData::heightChanged);
        data->setSize(UTButtonSize::Size(size));
        QTEST(values(*data, "height radius leftPadding rightPadding spacing iconSize"), "metrics");
        QTEST(data->font().pixelSize(), "fontSize");
        QCOMPARE(heights.count(), data->height() == 32 ? 0 : 1);
    }

    void iconsFollow()
    {
        Attached<UTPillButtonData> data;
        data->setStyle(UTButtonStyle::Primary);
        const QSignalSpy themes(&*data, &UTPillButtonData::onThemeTypeChanged);
        for (const QString &theme : {u"dark"_s, u"dark"_s, u"global"_s})
            data->setThemeType(theme);
        QCOMPARE(themes.count(), 2);
        const auto icons = [&data] {
            return data->iconColorData()->token() + u' ' + data->rightIconColorData()->token();
        };
        QCOMPARE(icons(), u"button-primary-text button-primary-text"_s);
        data->setIconColorSetName(u"text-primary"_s);
        QCOMPARE(icons(), u"text-primary text-primary"_s);
        data->setRightIconColorSetName(u"text-secondary"_s);
        QCOMPARE(icons(), u"text-primary text-secondary"_s);
        data->setIconColorSetName({});
        QCOMPARE(icons(), u"button-primary-text text-secondary"_s);
    }

    void customized()
    {
        UTEventData state;
        state.setEnabled(true);
        Attached<UTPillButtonData> data;
        data->setEventData(&state);
        data->setStyle(UTButtonStyle::Ghost);
        const QColor ghost = data->textColorData()->color();
        data->setIconColorCustomized(u"#ff8000"_s);
        QCOMPARE(data->textColorData()->color(), ghost); // not before a refresh
        data->setStyle(UTButtonStyle::Customized);
        QCOMPARE(data->textColorData()->color(), QColor(0xff8000));
        QCOMPARE(data->rightIconColorData()->color(), QColor(0xff8000));
        QVERIFY(data->iconColorData()->colorCustomized());
        QCOMPARE(data->iconColorData()->activeToken(), u"#ff8000"_s);
        data->setIconColorCustomized(u"no colour"_s);
        data->refresh(); // without a word
        QVERIFY(!data->textColorData()->color().isValid());
        data->setStyle(UTButtonStyle::Ghost);
        QVERIFY(!data->textColorData()->colorCustomized());
        QCOMPARE(data->textColorData()->color(), ghost);
        QCOMPARE(data->iconColorData()->color(), ghost);
    }

    void stateReachesColors()
    {
        Attached<UTPillButtonData> data;
        data->setStyle(UTButtonStyle::Secondary);
        QCOMPARE(data->textColorData()->color(), QColor(Qt::transparent));

        UTEventData state;
        data->setEventData(&state);
        state.setEnabled(true);
        const KColorSet set = KThemeUtils::getColorSet("button-secondary-background", AppThemeType::Global);
        QTRY_COMPARE(data->backgroundColorData()->color(), set.normal());
        state.setHovered(true);
        QTRY_COMPARE(data->backgroundColorData()->color(), set.hovered());

        data->setEventData(nullptr);
        QCOMPARE(data->backgroundColorData()->eventData(), nullptr);
        state.setHovered(false); // nobody listens any more
        QCoreApplication::processEvents();
        data->refresh();
    }

    void textScale()
    {
        Attached<UTPillButtonData> data;
        data->setSize(UTButtonSize::XL);
        App::instance()->setTextScale(2);
        QCOMPARE(data->font().pixelSize(), 32);
        QCOMPARE(data->height(), 40);
    }

    void sourceOfState()
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
};

QTEST_MAIN(tst_PillButtonData)
#include "tst_pillbuttondata.moc"
