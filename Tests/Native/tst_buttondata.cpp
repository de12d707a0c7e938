#include "DataTest.h"
#include "UTBlockButtonData.h"
#include "UTCallControlButtonData.h"
#include "UTChipData.h"
#include "UTEventData.h"
#include "UTIconButtonData.h"
#include "UTMultilinePillButtonData.h"
#include "UTPillButtonData.h"
#include "UTRectangleButtonData.h"
#include "UTRoundButtonData.h"
#include "UTTextButtonData.h"

#include <QMetaProperty>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_ButtonData : public DataTest
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data()
    {
        const Table<int, QVariantList, QVariantList, int, QVariantList> row{"size", "round", "rectangle", "font",
                                                                            "line"};
        const QSize icon(16, 16);
        row("first", 1, {64, 64, 32, QSize(32, 32)}, {16, 8, 20, 40}, 16, {40, 20, 16, 16, QSize(20, 20), 9, 1, 5});
        row("S", 4, {32, 32, 16, icon}, {10, 4, 16, 28}, 14, {28, 14, 10, 10, icon, 9, 1, 5});
        row("last", 7, {16, 16, 8, QSize(8, 8)}, {10, 4, 16, 28}, 14, {24, 12, 8, 8, icon, 9, 1, 5});
        for (int unknown : {0, 8, -1}) // leaves M, except for the icon of a round button
            row(QString::number(unknown), unknown, {40, 40, 20, QSize(0, 0)}, {12, 4, 20, 32}, 16,
                {32, 16, 12, 12, icon, 9, 1, 5});
    }

    void sizes()
    {
        QFETCH(int, size);
        const auto value = UTButtonSize::Size(size);
        Attached<UTRoundButtonData> round;
        Attached<UTRectangleButtonData> rectangle;
        Attached<UTMultilinePillButtonData> line;
        QCOMPARE(rectangle->preferredHeight() + round->height() + line->lineDesignatorPadding(), 0);
        line->setSize(UTButtonSize::None);
        line->refresh();
        QCOMPARE(line->lineDesignatorPadding(), 0); // a line without a size sets nothing at all

        const QSignalSpy widths(&*round, &UTRoundButtonData::widthChanged);
        for (auto next : {UTButtonSize::M, value}) {
            round->setSize(next);
            rectangle->setSize(next);
            line->setSize(next);
        }
        QTEST(values(*round, "height width radius iconSize"), "round");
        QCOMPARE(widths.count(), round->width() == 40 ? 1 : 2);
        QTEST(values(*rectangle, "leftPadding topPadding iconSize preferredHeight"), "rectangle");
        QTEST(values(*line,
                     "height radius leftPadding rightPadding iconSize lineDesignatorBorderRadius "
                     "lineDesignatorBorderThickness lineDesignatorPadding"),
              "line");

        const int pixels = rectangle->font().pixelSize();
        QTEST(pixels, "font");
        App::instance()->setTextScale(2);
        rectangle->setSize(UTButtonSize::M);
        QCOMPARE(rectangle->font().pixelSize(), 32);
        rectangle->setSize(value);
        QCOMPARE(rectangle->font().pixelSize(), 2 * pixels);
    }

    void textButton_data()
    {
        const Table<int, QString> row{"style", "set"};
        const QString first = u"hyperlink-accent-text"_s;
        row("first", 0, first);
        row("last with a name of its own", 5, "tags-slate-border");
        row("the same", 11, "tags-slate-border");
        row("last", 12, "sharewindow-control-text-primary");
        row("unknown", 13, first);
        row("negative", -1, first);
    }

    void textButton()
    {
        QFETCH(int, style);
        Attached<UTTextButtonData> data;
        QCOMPARE(data->textColorSetName(), u"hyperlink-accent-text"_s);
        data->setColorStyle(UTTextButtonData::ColorStyle(style));
        QTEST(data->textColorSetName(), "set");
        QCOMPARE(data->font().pixelSize(), 16);
        QVERIFY(data->font().underline());
        data->setSizeStyle(UTTextButtonData::SizeStyle::Secondary);
        QCOMPARE(data->font().pixelSize(), 14);
        data->setSizeStyle(UTTextButtonData::SizeStyle(style + 2));
        QCOMPARE(data->font().pixelSize(), style == -1 ? 14 : 16);
    }

    void iconTypes_data()
    {
        const Table<int, QString, QString> row{"type", "icon", "checkedIcon"};
        row("first", 1, "settings-bold", "settings-filled");
        row("filled when checked", 2, "favorite-bold", "favorite-filled");
        row("filled always", 8, "warning-badge-filled", "warning-badge-filled");
        row("last", 13, "outgoing-call-legacy-bold", "outgoing-call-legacy-bold");
    }

    void iconTypes()
    {
        QFETCH(int, type);
        QFETCH(QString, checkedIcon);
        Attached<UTIconButtonData> data;
        UTEventData state;
        state.setEnabled(true);
        data->setEventData(&state);
        QCOMPARE(data->iconData()->icon(), QString());
        data->setType(UTButtonType::Type(type));
        QTEST(data->iconData()->icon(), "icon");
        const QString token = data->textColorData()->token();
        QVERIFY(!token.isEmpty());
        QCOMPARE(data->iconColorData()->token(), token);
        QCOMPARE(data->backgroundColorData()->token(), u"interactiveicon-container-background"_s);
        QCOMPARE(data->border(), 0);
        state.setChecked(true);
        QTRY_COMPARE(data->iconData()->icon(), checkedIcon);

        for (int odd : {0, 14, -2}) {
            data->setType(UTButtonType::Type(odd));
            QCOMPARE(data->textColorData()->token(), token);
        }
        QCOMPARE(data->buttonSize(), QSize(24, 24));
        QCOMPARE(data->iconSize(), QSize(16, 16));
        QCOMPARE(data->radius(), 12);
    }

    void iconOfState()
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

    void iconButtonInHighContrast()
    {
        ThemeManager::instance()->setTheme(u"highContrast"_s);
        Attached<UTIconButtonData> data;
        data->setType(UTButtonType::Warning);
        QCOMPARE(data->textColorData()->token(), u"button-secondary-text"_s);
        QCOMPARE(data->backgroundColorData()->activeToken(), u"button-secondary-active-background"_s);
        QCOMPARE(data->border(), 1);
    }

    void blockTexts_data()
    {
        const Table<QString, QString, QString> row{"original", "display", "accessible"};
        row("empty", "", "", "");
        row("blank", " \n\t\n", "", "");
        row("one line", "Show all", "Show all", "Show all");
        row("lines", "\n One \r\n\n two.  2\u2028three", "One<br>two. 2<br>three", "One, two. 2, three");
        row("a sentence", "Done.\nNext", "Done.<br>Next", "Done. Next");
        row("plain text with signs", "a < b & c", "a &lt; b &amp; c", "a < b & c");
        row("rich", "<h1>One</h1><p>two <b>bold</b> &lt;img src='http://x/y'&gt;</p>",
            "One<br>two bold &lt;img src='http://x/y'&gt;", "One, two bold <img src='http://x/y'>");
        row("script", "<script>alert(1)</script><i>One</i>", "One", "One");
    }

    void blockTexts()
    {
        QFETCH(QString, original);
        Attached<UTBlockButtonData> data;
        data->setOriginalText(original);
        QTEST(data->displayText(), "display");
        QTEST(data->accessibleText(), "accessible");
    }

    void blockColorsAndLimits()
    {
        Attached<UTBlockButtonData> data;
        data->setOriginalText(u"One \U0001F600\ntwo\nthree"_s);
        QVERIFY2(data->displayText().contains("<img"_L1), qPrintable(data->displayText()));
        QCOMPARE(data->accessibleText(), u"One \U0001F600, two, three"_s);
        data->setOriginalText(u"One\ntwo\nthree"_s);
        data->setAccentTextColor(QColor(0xff0000));
        data->setSecondaryTextColor(QColor(0x0000ff));
        QCOMPARE(data->displayText(),
                 u"<font color=\"#ffff0000\">One</font><br><font color=\"#ff0000ff\">two</font><br>"
                 "<font color=\"#ff0000ff\">three</font>"_s);

        for (const QString &endless : {u"word "_s.repeated(100'000), u"<div>x"_s.repeated(100'000),
                                       u"&lt;"_s.repeated(100'000), u"\U0001F468\u200D\U0001F467"_s.repeated(1000)}) {
            data->setOriginalText(endless);
            QVERIFY2(data->accessibleText().size() <= 3 * 400 + 1, "a line and a pause for each character at most");
            QVERIFY(data->accessibleText().endsWith(QChar(0x2026)));
            QVERIFY2(!data->accessibleText().chopped(1).back().isSurrogate()
                         || data->accessibleText().chopped(1).back().isLowSurrogate(),
                     "cut between characters");
        }
        data->setOriginalText(u"a<b c='"_s + u"x"_s.repeated(5000));
        QVERIFY(data->accessibleText().startsWith(u'a'));
    }

    // Anywhere but on its own component a data object says so, and nothing follows from what it is told.
    void wrongPlace()
    {
        const std::pair<const char *, std::unique_ptr<QObject> (*)(QObject *)> kinds[] = {
            {"UTBlockButton", make<UTBlockButtonData>},
            {"UTCallControlButton", make<UTCallControlButtonData>},
            {"UTChip", make<UTChipData>},
            {"UTIconButton", make<UTIconButtonData>},
            {"UTMultilinePillButton", make<UTMultilinePillButtonData>},
            {"UTPillButton", make<UTPillButtonData>},
            {"UTRectangleButton", make<UTRectangleButtonData>},
            {"UTRoundButton", make<UTRoundButtonData>},
            {"UTTextButton", make<UTTextButtonData>},
        };
        const QList<QByteArray> inputs = {"style",     "size",         "type",           "colorStyle",
                                          "sizeStyle", "buttonType",   "buttonSize",     "buttonStyle",
                                          "showText",  "originalText", "typeWithMetrics"};
        for (const auto &[component, create] : kinds) {
            for (QObject *attachee : {static_cast<QObject *>(this), static_cast<QObject *>(nullptr)}) {
                expectMisplaced(component);
                const auto data = create(attachee);
                const QVariantList before = outputs(*data, inputs);
                for (const QByteArray &input : inputs)
                    data->setProperty(input, 2);
                QVERIFY2(outputs(*data, inputs) == before, component);
            }
        }
    }

private:
    template<typename Data>
    static std::unique_ptr<QObject> make(QObject *attachee)
    {
        return std::make_unique<Data>(attachee);
    }

    static QVariantList outputs(const QObject &data, const QList<QByteArray> &inputs)
    {
        QVariantList list;
        for (int i = 0; i < data.metaObject()->propertyCount(); ++i) {
            const QMetaProperty property = data.metaObject()->property(i);
            if (!inputs.contains(property.name()) && !(property.metaType().flags() & QMetaType::PointerToQObject))
                list << property.read(&data);
        }
        for (const UTColorData *color : data.findChildren<UTColorData *>())
            list << color->token() << color->activeToken();
        return list;
    }
};

QTEST_MAIN(tst_ButtonData)
#include "tst_buttondata.moc"
