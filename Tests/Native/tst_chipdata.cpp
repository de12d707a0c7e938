#include "DataTest.h"
#include "UTChipData.h"

using namespace Qt::StringLiterals;

class tst_ChipData : public DataTest
{
    Q_OBJECT

private Q_SLOTS:
    void styles_data()
    {
        const Table<int, QString> row{"style", "border"};
        const QString plain = u"button-secondary-border"_s;
        row("default", 1, plain);
        const char *const names[] = {"cobalt", "cyan", "mint", "lime", "orange", "pink", "purple", "violet"};
        for (int i = 0; i < 8; ++i)
            row(names[i], i + 2, "chips-outline-multiline-text-"_L1 + QLatin1StringView(names[i]));
        row("unknown", 10, plain);
        row("negative", -1, plain);
    }

    void styles()
    {
        QFETCH(int, style);
        Attached<UTChipData> data;
        data->refresh();
        QCOMPARE(data->borderColorData()->token(), QString()); // without a style
        QCOMPARE(data->radius(), 0);
        data->setStyle(UTChipStyle::Style(style));
        QTEST(data->borderColorData()->token(), "border");
        QCOMPARE(data->backgroundColorData()->token(), u"button-secondary-background"_s);
        QCOMPARE(data->textColorData()->token(), u"button-secondary-text"_s);
        QCOMPARE(values(*data, "border radius iconSize"), QVariantList({1, 4, QSize(16, 16)}));
        data->setStyle(UTChipStyle::None);
        QTEST(data->borderColorData()->token(), "border");
    }

    void highContrast()
    {
        Attached<UTChipData> before;
        before->setStyle(UTChipStyle::Outline_Pink);
        ThemeManager::instance()->setTheme(u"highContrast"_s);
        Attached<UTChipData> data;
        data->refresh();
        QCOMPARE(data->borderColorData()->token(), u"button-secondary-border"_s);
        data->setStyle(UTChipStyle::Outline_Cyan);
        QCOMPARE(data->borderColorData()->token(), u"button-secondary-border"_s);
        before->setStyle(UTChipStyle::Outline_Cyan); // it asked once
        QCOMPARE(before->borderColorData()->token(), u"chips-outline-multiline-text-cyan"_s);
    }

    void hasNoColorOfItsIcon()
    {
        Attached<UTChipData> data;
        QTest::ignoreMessage(QtWarningMsg, "Icon color data was not created.");
        QCOMPARE(data->iconColorData(), nullptr);
        QTest::ignoreMessage(QtWarningMsg, "Right icon color data was not created.");
        QCOMPARE(data->rightIconColorData(), nullptr);
    }
};

QTEST_MAIN(tst_ChipData)
#include "tst_chipdata.moc"
