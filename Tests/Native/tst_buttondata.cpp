#include "UTBlockButtonData.h"
#include "UTEventData.h"
#include "UTIconButtonData.h"
#include "UTMultilinePillButtonData.h"
#include "UTRectangleButtonData.h"
#include "UTRoundButtonData.h"
#include "UTTextButtonData.h"

#include <App.h>
#include <ThemeManager.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// What the components look like to their data objects.
class UTBlockButton : public QObject
{
    Q_OBJECT
};
class UTIconButton : public QObject
{
    Q_OBJECT
};
class UTMultilinePillButton : public QObject
{
    Q_OBJECT
};
class UTRectangleButton : public QObject
{
    Q_OBJECT
};
class UTRoundButton : public QObject
{
    Q_OBJECT
};
class UTTextButton : public QObject
{
    Q_OBJECT
};

class tst_ButtonData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sizes_data();
    void sizes();
    void textButton_data();
    void textButton();
    void iconTypes_data();
    void iconTypes();
    void iconOfState();
    void iconButtonInHighContrast();
    void blockTexts_data();
    void blockTexts();
    void blockColorsAndLimits();
    void wrongPlace();
};

void tst_ButtonData::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void tst_ButtonData::cleanup()
{
    ThemeManager::instance()->setTheme(u"light"_s);
    App::instance()->setTextScale(1);
}

void tst_ButtonData::sizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QList<int>>("round");     // height, width, radius, icon
    QTest::addColumn<QList<int>>("rectangle"); // paddings, icon, height, font
    QTest::addColumn<QList<int>>("line"); // height, radius, paddings, icon, font; radius, border, padding of the frame

    // Each starts from M.
    const QList<int> roundM = {40, 40, 20, 20};
    const QList<int> rectangleM = {12, 4, 20, 32, 16};
    const QList<int> rectangleS = {10, 4, 16, 28, 14};
    const QList<int> lineM = {32, 16, 12, 12, 16, 16, 9, 1, 5};
    QTest::newRow("XL") << 1 << QList{64, 64, 32, 32} << QList{16, 8, 20, 40, 16}
                        << QList{40, 20, 16, 16, 20, 16, 9, 1, 5};
    QTest::newRow("L") << 2 << QList{52, 52, 26, 28} << rectangleM << lineM;
    QTest::newRow("M") << 3 << roundM << rectangleM << lineM;
    QTest::newRow("S") << 4 << QList{32, 32, 16, 16} << rectangleS << QList{28, 14, 10, 10, 16, 14, 9, 1, 5};
    QTest::newRow("XXS") << 6 << QList{24, 24, 12, 16} << rectangleS << QList{24, 12, 8, 8, 16, 12, 9, 1, 5};
    QTest::newRow("XXXS") << 7 << QList{16, 16, 8, 8} << rectangleS << QList{24, 12, 8, 8, 16, 12, 9, 1, 5};
    for (int odd : {0, 8, -1})
        QTest::addRow("%d", odd) << odd << QList{40, 40, 20, 0} << rectangleM << lineM;
}

void tst_ButtonData::sizes()
{
    QFETCH(int, size);
    const auto value = UTButtonSize::Size(size);

    UTRoundButton roundButton;
    UTRoundButtonData round(&roundButton);
    UTRectangleButton rectangleButton;
    UTRectangleButtonData rectangle(&rectangleButton);
    UTMultilinePillButton pill;
    UTMultilinePillButtonData line(&pill);
    QCOMPARE(rectangle.preferredHeight() + round.height() + line.lineDesignatorPadding(), 0);
    line.setSize(UTButtonSize::None);
    line.refresh();
    QCOMPARE(line.lineDesignatorPadding(), 0); // a line without a size sets nothing at all

    const QSignalSpy widths(&round, &UTRoundButtonData::widthChanged);
    for (auto next : {UTButtonSize::M, value}) {
        round.setSize(next);
        rectangle.setSize(next);
        line.setSize(next);
    }
    const QList<int> roundMetrics = {round.height(), round.width(), round.radius(), round.iconSize().width()};
    QTEST(roundMetrics, "round");
    QCOMPARE(widths.count(), round.width() == 40 ? 1 : 2);
    const QList<int> rectangleMetrics = {rectangle.leftPadding(), rectangle.topPadding(), rectangle.iconSize(),
                                         rectangle.preferredHeight(), rectangle.font().pixelSize()};
    QTEST(rectangleMetrics, "rectangle");
    const QList<int> lineMetrics = {line.height(),
                                    line.radius(),
                                    line.leftPadding(),
                                    line.rightPadding(),
                                    line.iconSize().height(),
                                    line.font().pixelSize(),
                                    line.lineDesignatorBorderRadius(),
                                    line.lineDesignatorBorderThickness(),
                                    line.lineDesignatorPadding()};
    QTEST(lineMetrics, "line");

    const int pixels = rectangle.font().pixelSize();
    App::instance()->setTextScale(2);
    rectangle.setSize(UTButtonSize::M);
    QCOMPARE(rectangle.font().pixelSize(), 32);
    rectangle.setSize(value);
    QCOMPARE(rectangle.font().pixelSize(), 2 * pixels);
}

void tst_ButtonData::textButton_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("set");

    const QStringList sets = {u"hyperlink-accent-text"_s,  u"hyperlink-destructive-text"_s,
                              u"hyperlink-share-text"_s,   u"coachmarkteaching-button-hyperlink-text"_s,
                              u"hyperlink-warning-text"_s, u"tags-slate-border"_s};
    for (int style = 0; style <= int(UTTextButtonData::ColorStyle::Slate); ++style)
        QTest::addRow("%d", style) << style << sets[qMin(style, 5)];
    QTest::newRow("share") << 12 << u"sharewindow-control-text-primary"_s;
    QTest::newRow("unknown") << 13 << sets[0];
    QTest::newRow("negative") << -1 << sets[0];
}

void tst_ButtonData::textButton()
{
    QFETCH(int, style);
    UTTextButton button;
    UTTextButtonData data(&button);
    QCOMPARE(data.textColorSetName(), u"hyperlink-accent-text"_s);
    data.setColorStyle(UTTextButtonData::ColorStyle(style));
    QTEST(data.textColorSetName(), "set");
    QCOMPARE(data.font().pixelSize(), 16);
    QVERIFY(data.font().underline());
    data.setSizeStyle(UTTextButtonData::SizeStyle::Secondary);
    QCOMPARE(data.font().pixelSize(), 14);
    data.setSizeStyle(UTTextButtonData::SizeStyle(style + 2));
    QCOMPARE(data.font().pixelSize(), style == -1 ? 14 : 16);
}

void tst_ButtonData::iconTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("checkedIcon");

    const char *const names[] = {
        "settings-bold", "favorite-bold", "info-circle-filled",       "attachment-bold", "emoji-happy-bold",
        "link-bold",     "edit-bold",     "warning-badge-filled",     "pop-out-bold",    "pop-in-bold",
        "cancel-bold",   "copy-bold",     "outgoing-call-legacy-bold"};
    int type = UTButtonType::Settings;
    for (const char *name : names) {
        const QString icon = QString::fromLatin1(name);
        const bool isFilled = icon.startsWith("settings"_L1) || icon.startsWith("favorite"_L1);
        QTest::newRow(name) << type++ << icon << (isFilled ? QString(icon).replace("bold"_L1, "filled"_L1) : icon);
    }
}

void tst_ButtonData::iconTypes()
{
    QFETCH(int, type);
    QFETCH(QString, checkedIcon);
    UTIconButton button;
    UTIconButtonData data(&button);
    UTEventData state;
    state.setEnabled(true);
    data.setEventData(&state);
    QCOMPARE(data.iconData()->icon(), QString());
    data.setType(UTButtonType::Type(type));
    QTEST(data.iconData()->icon(), "icon");
    const QString token = data.textColorData()->token();
    QVERIFY(!token.isEmpty());
    QCOMPARE(data.iconColorData()->token(), token);
    QCOMPARE(data.backgroundColorData()->token(), u"interactiveicon-container-background"_s);
    QCOMPARE(data.border(), 0);
    state.setChecked(true);
    QTRY_COMPARE(data.iconData()->icon(), checkedIcon);

    for (int odd : {0, 14, -2}) {
        data.setType(UTButtonType::Type(odd));
        QCOMPARE(data.textColorData()->token(), token);
    }
    QCOMPARE(data.buttonSize(), QSize(24, 24));
    QCOMPARE(data.iconSize(), QSize(16, 16));
    QCOMPARE(data.radius(), 12);
}

void tst_ButtonData::iconOfState()
{
    UTIconData icon;
    icon.setNames({"n"_L1, "h"_L1, "p"_L1, "c"_L1, "d"_L1});
    QCOMPARE(icon.icon(), QString()); // there is no state
    UTEventData state;
    icon.setEventData(&state);
    QCOMPARE(icon.icon(), u"d"_s);
    const QSignalSpy changes(&icon, &UTIconData::iconChanged);
    state.setChecked(true);
    QTRY_COMPARE(icon.icon(), u"c"_s); // what is checked looks so even while disabled
    state.setChecked(false);
    state.setEnabled(true);
    state.setHovered(true);
    QTRY_COMPARE(icon.icon(), u"h"_s);
    QCOMPARE(changes.count(), 2);
    state.setPressed(true);
    QTRY_COMPARE(icon.icon(), u"p"_s);
    icon.setEventData(nullptr);
    QCOMPARE(icon.icon(), QString());
}

void tst_ButtonData::iconButtonInHighContrast()
{
    ThemeManager::instance()->setTheme(u"highContrast"_s);
    UTIconButton button;
    UTIconButtonData data(&button);
    data.setType(UTButtonType::Warning);
    QCOMPARE(data.textColorData()->token(), u"button-secondary-text"_s);
    QCOMPARE(data.backgroundColorData()->activeToken(), u"button-secondary-active-background"_s);
    QCOMPARE(data.border(), 1);
}

void tst_ButtonData::blockTexts_data()
{
    QTest::addColumn<QString>("original");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("accessible");

    QTest::newRow("empty") << QString() << QString() << QString();
    QTest::newRow("blank") << u" \n\t\n"_s << QString() << QString();
    QTest::newRow("one line") << u"Show all"_s << u"Show all"_s << u"Show all"_s;
    QTest::newRow("lines") << u"\n One \r\n\n two.  2\u2028three"_s << u"One<br>two. 2<br>three"_s
                           << u"One, two. 2, three"_s;
    QTest::newRow("a sentence") << u"Done.\nNext"_s << u"Done.<br>Next"_s << u"Done. Next"_s;
    QTest::newRow("plain text with signs") << u"a < b & c"_s << u"a &lt; b &amp; c"_s << u"a < b & c"_s;
    QTest::newRow("rich") << u"<h1>One</h1><p>two <b>bold</b> &lt;img src='http://x/y'&gt;</p>"_s
                          << u"One<br>two bold &lt;img src='http://x/y'&gt;"_s
                          << u"One, two bold <img src='http://x/y'>"_s;
    QTest::newRow("script") << u"<script>alert(1)</script><i>One</i>"_s << u"One"_s << u"One"_s;
}

void tst_ButtonData::blockTexts()
{
    QFETCH(QString, original);
    UTBlockButton button;
    UTBlockButtonData data(&button);
    data.setOriginalText(original);
    QTEST(data.displayText(), "display");
    QTEST(data.accessibleText(), "accessible");
}

void tst_ButtonData::blockColorsAndLimits()
{
    UTBlockButton button;
    UTBlockButtonData data(&button);
    data.setOriginalText(u"One \U0001F600\ntwo\nthree"_s);
    QVERIFY2(data.displayText().contains("<img"_L1), qPrintable(data.displayText()));
    QCOMPARE(data.accessibleText(), u"One \U0001F600, two, three"_s);
    data.setOriginalText(u"One\ntwo\nthree"_s);
    data.setAccentTextColor(QColor(0xff0000));
    data.setSecondaryTextColor(QColor(0x0000ff));
    QCOMPARE(data.displayText(),
             u"<font color=\"#ffff0000\">One</font><br><font color=\"#ff0000ff\">two</font><br>"
             "<font color=\"#ff0000ff\">three</font>"_s);

    for (const QString &endless : {u"word "_s.repeated(100'000), u"<div>x"_s.repeated(100'000),
                                   u"&lt;"_s.repeated(100'000), u"\U0001F468\u200D\U0001F467"_s.repeated(1000)}) {
        data.setOriginalText(endless);
        QVERIFY2(data.accessibleText().size() <= 3 * 400 + 1, "a line and a pause for each character at most");
        QVERIFY(data.accessibleText().endsWith(QChar(0x2026)));
        QVERIFY2(!data.accessibleText().chopped(1).back().isSurrogate()
                     || data.accessibleText().chopped(1).back().isLowSurrogate(),
                 "cut between characters");
    }
    data.setOriginalText(u"a<b c='"_s + u"x"_s.repeated(5000));
    QVERIFY(data.accessibleText().startsWith(u'a'));
}

void tst_ButtonData::wrongPlace()
{
    QObject other;
    const auto expect = [](const char *component) {
        QTest::ignoreMessage(QtWarningMsg,
                             QByteArray("This property can't be used outside it's supported component (")
                                 .append(component)
                                 .append(").")
                                 .constData());
    };
    expect("UTRoundButton");
    UTRoundButtonData round(&other);
    round.setSize(UTButtonSize::M);
    expect("UTMultilinePillButton");
    UTMultilinePillButtonData line(nullptr);
    line.setSize(UTButtonSize::M);
    expect("UTRectangleButton");
    UTRectangleButtonData rectangle(&other);
    rectangle.setSize(UTButtonSize::M);
    QCOMPARE(round.height() + line.height() + rectangle.preferredHeight(), 0);
    expect("UTTextButton");
    UTTextButtonData text(&other);
    text.setColorStyle(UTTextButtonData::ColorStyle::Share);
    expect("UTBlockButton");
    UTBlockButtonData block(&other);
    block.setOriginalText(u"Text"_s);
    expect("UTIconButton");
    UTIconButtonData icon(nullptr);
    icon.setType(UTButtonType::Copy);
    QCOMPARE(text.textColorSetName() + block.displayText() + icon.textColorData()->token(), QString());
}

QTEST_MAIN(tst_ButtonData)
#include "tst_buttondata.moc"
