#include "UTChipData.h"
#include "UTEventData.h"

#include <ThemeManager.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

// What the component looks like to its data object.
class UTChip : public QObject
{
    Q_OBJECT
};

class tst_ChipData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }
    void cleanup() { ThemeManager::instance()->setTheme(u"light"_s); }
    void styles_data();
    void styles();
    void highContrast();
    void inert();
};

void tst_ChipData::styles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("border");

    const QString plain = u"button-secondary-border"_s;
    QTest::newRow("default") << 1 << plain;
    const char *const names[] = {"cobalt", "cyan", "mint", "lime", "orange", "pink", "purple", "violet"};
    for (int i = 0; i < 8; ++i)
        QTest::newRow(names[i]) << i + 2 << "chips-outline-multiline-text-"_L1 + QLatin1StringView(names[i]);
    QTest::newRow("unknown") << 10 << plain;
    QTest::newRow("negative") << -1 << plain;
}

void tst_ChipData::styles()
{
    QFETCH(int, style);
    UTChip chip;
    UTChipData data(&chip);
    data.refresh();
    QCOMPARE(data.borderColorData()->token(), QString()); // without a style
    QCOMPARE(data.radius(), 0);
    data.setStyle(UTChipStyle::Style(style));
    QTEST(data.borderColorData()->token(), "border");
    QCOMPARE(data.backgroundColorData()->token(), u"button-secondary-background"_s);
    QCOMPARE(data.textColorData()->token(), u"button-secondary-text"_s);
    QCOMPARE(data.border(), 1);
    QCOMPARE(data.radius(), 4);
    QCOMPARE(data.iconSize(), QSize(16, 16));
    data.setStyle(UTChipStyle::None);
    QTEST(data.borderColorData()->token(), "border");
}

void tst_ChipData::highContrast()
{
    UTChip chip;
    UTChipData before(&chip);
    before.setStyle(UTChipStyle::Outline_Pink);
    ThemeManager::instance()->setTheme(u"highContrast"_s);
    UTChipData data(&chip);
    data.refresh();
    QCOMPARE(data.borderColorData()->token(), u"button-secondary-border"_s);
    data.setStyle(UTChipStyle::Outline_Cyan);
    QCOMPARE(data.borderColorData()->token(), u"button-secondary-border"_s);
    before.setStyle(UTChipStyle::Outline_Cyan); // it asked once
    QCOMPARE(before.borderColorData()->token(), u"chips-outline-multiline-text-cyan"_s);
}

void tst_ChipData::inert()
{
    QObject other;
    QTest::ignoreMessage(QtWarningMsg, "This property can't be used outside it's supported component (UTChip).");
    UTChipData data(&other);
    data.setStyle(UTChipStyle::Outline_Cyan);
    QCOMPARE(data.borderColorData()->token(), QString());
    QTest::ignoreMessage(QtWarningMsg, "Icon color data was not created.");
    QCOMPARE(data.iconColorData(), nullptr);
    QTest::ignoreMessage(QtWarningMsg, "Right icon color data was not created.");
    QCOMPARE(data.rightIconColorData(), nullptr);
}

QTEST_GUILESS_MAIN(tst_ChipData)
#include "tst_chipdata.moc"
