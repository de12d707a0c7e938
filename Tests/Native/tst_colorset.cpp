#include "KColorSet.h"
#include "KThemeUtils.h"

#include <QMetaProperty>
#include <QRegularExpression>
#include <QTest>
#include <QVariant>

namespace {
KColorSet sample()
{
    return KColorSet(QStringLiteral("sample"), {Qt::black, Qt::white, Qt::red, Qt::green, Qt::blue, Qt::cyan});
}
}

class tst_colorset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void startsWithoutColors();
    void isValidAsAWhole();
    void colorByState_data();
    void colorByState();
    void unknownStateIsNamed();
    void propertiesInOrder();
    void comparesAndCopies();
    void unknownNames();
    void themeTypes();
};

void tst_colorset::startsWithoutColors()
{
    const KColorSet set;
    QVERIFY(!set.isValid());
    QVERIFY(set.name().isEmpty());
    for (int state = 0; state < KColorSet::StateCount; ++state)
        QCOMPARE(set.color(KColorSet::State(state)), QColor());
}

void tst_colorset::isValidAsAWhole()
{
    QVERIFY(sample().isValid());
    KColorSet set = sample();
    set.setName({});
    QVERIFY(!set.isValid());
    set = sample();
    set.setChecked({});
    QVERIFY(!set.isValid());
    // Fully transparent is a colour.
    set.setChecked(Qt::transparent);
    QVERIFY(set.isValid());
}

void tst_colorset::colorByState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("color");
    const KColorSet set = sample();
    QTest::newRow("normal") << QStringLiteral("normal") << set.normal();
    QTest::newRow("hovered") << QStringLiteral("hovered") << set.hovered();
    QTest::newRow("pressed") << QStringLiteral("pressed") << set.pressed();
    QTest::newRow("disabled") << QStringLiteral("disabled") << set.disabled();
    QTest::newRow("focused") << QStringLiteral("focused") << set.focused();
    QTest::newRow("checked") << QStringLiteral("checked") << set.checked();
}

void tst_colorset::colorByState()
{
    QFETCH(QString, state);
    QFETCH(QColor, color);
    QCOMPARE(sample().color(state), color);
    // Script code reaches the same through the meta-object.
    const KColorSet set = sample();
    QColor invoked;
    const QMetaMethod method =
        KColorSet::staticMetaObject.method(KColorSet::staticMetaObject.indexOfMethod("color(QString)"));
    QVERIFY(method.invokeOnGadget(const_cast<KColorSet *>(&set), Q_RETURN_ARG(QColor, invoked), Q_ARG(QString, state)));
    QCOMPARE(invoked, color);
    const QMetaProperty property =
        KColorSet::staticMetaObject.property(KColorSet::staticMetaObject.indexOfProperty(qPrintable(state)));
    QCOMPARE(property.readOnGadget(&set).value<QColor>(), color);
}

void tst_colorset::unknownStateIsNamed()
{
    for (const char *state : {"Normal", "active", ""}) {
        QTest::ignoreMessage(QtWarningMsg, QByteArray("KColorSet: color state is invalid! ") + state);
        QVERIFY(!sample().color(QLatin1String(state)).isValid());
    }
}

void tst_colorset::propertiesInOrder()
{
    const QList<QByteArray> expected{"name",     "normal",  "hovered", "pressed",
                                     "disabled", "focused", "checked", "isValid"};
    QList<QByteArray> found;
    for (int i = 0; i < KColorSet::staticMetaObject.propertyCount(); ++i)
        found.append(KColorSet::staticMetaObject.property(i).name());
    QCOMPARE(found, expected);
    QVERIFY(!KColorSet::staticMetaObject.property(int(expected.size()) - 1).isWritable());
    QCOMPARE(QMetaType::fromName("KColorSet"), QMetaType::fromType<KColorSet>());
}

void tst_colorset::comparesAndCopies()
{
    QCOMPARE(QVariant::fromValue(sample()).value<KColorSet>(), sample());
    KColorSet other = sample();
    other.setPressed(Qt::yellow);
    QVERIFY(other != sample());
    other = sample();
    other.setName(QStringLiteral("other"));
    QVERIFY(other != sample());
}

void tst_colorset::unknownNames()
{
    QTest::ignoreMessage(QtWarningMsg, "Unknown colour set \"no-such-set\".");
    for (int i = 0; i < 3; ++i) {
        const KColorSet set = KThemeUtils::getColorSet("no-such-set", AppThemeType::Dark);
        QVERIFY(!set.isValid());
        QCOMPARE(set.name(), QStringLiteral("no-such-set"));
    }
    // Names are compared exactly.
    QTest::ignoreMessage(QtWarningMsg, "Unknown colour set \"Text-primary\".");
    QVERIFY(!KThemeUtils::getColorSet("Text-primary", AppThemeType::Light).isValid());
    QCOMPARE(KThemeUtils::getColorSet({}, AppThemeType::Global), KColorSet());
}

void tst_colorset::themeTypes()
{
    QCOMPARE(KThemeUtils::stringToThemeType(QStringLiteral("global")), AppThemeType::Global);
    QCOMPARE(KThemeUtils::stringToThemeType(QStringLiteral("light")), AppThemeType::Light);
    QCOMPARE(KThemeUtils::stringToThemeType(QStringLiteral("dark")), AppThemeType::Dark);
    QCOMPARE(KThemeUtils::stringToThemeType(QStringLiteral("highContrast")), AppThemeType::HighContrast);
    QCOMPARE(KThemeUtils::stringToThemeType({}), AppThemeType::Global);
    QTest::ignoreMessage(QtWarningMsg, "Unknown theme type \"Dark\".");
    for (int i = 0; i < 2; ++i)
        QCOMPARE(KThemeUtils::stringToThemeType(QStringLiteral("Dark")), AppThemeType::Global);
}

QTEST_GUILESS_MAIN(tst_colorset)
#include "tst_colorset.moc"
