#include "KColorSet.h"
#include "KThemeUtils.h"
#include "NativeTest.h"

#include <QLoggingCategory>
#include <QMetaProperty>
#include <QVariant>

using namespace Qt::StringLiterals;

static KColorSet sample()
{
    return KColorSet(u"sample"_s, {Qt::black, Qt::white, Qt::red, Qt::green, Qt::blue, Qt::cyan});
}

class tst_colorset : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutColors()
    {
        const KColorSet set;
        QVERIFY(!set.isValid());
        QVERIFY(set.name().isEmpty());
        for (int state = 0; state < KColorSet::StateCount; ++state)
            QCOMPARE(set.color(KColorSet::State(state)), QColor());
    }

    void isValidAsAWhole()
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

    void colorByState()
    {
        const KColorSet set = sample();
        const QMetaObject &meta = KColorSet::staticMetaObject;
        const std::pair<const char *, QColor> states[] = {{"normal", set.normal()},   {"hovered", set.hovered()},
                                                          {"pressed", set.pressed()}, {"disabled", set.disabled()},
                                                          {"focused", set.focused()}, {"checked", set.checked()}};
        for (const auto &[name, color] : states) {
            const QString state = QLatin1String(name);
            QCOMPARE(set.color(state), color);
            // Script code reaches the same through the meta-object.
            QColor invoked;
            QVERIFY(meta.method(meta.indexOfMethod("color(QString)"))
                        .invokeOnGadget(const_cast<KColorSet *>(&set), Q_RETURN_ARG(QColor, invoked),
                                        Q_ARG(QString, state)));
            QCOMPARE(invoked, color);
            QCOMPARE(meta.property(meta.indexOfProperty(name)).readOnGadget(&set).value<QColor>(), color);
        }
    }

    void unknownStateIsNamed()
    {
        for (const char *state : {"Normal", "active", ""}) {
            QTest::ignoreMessage(QtWarningMsg, QByteArray("KColorSet: color state is invalid! ") + state);
            QVERIFY(!sample().color(QLatin1String(state)).isValid());
        }
    }

    void comparesAndCopies()
    {
        QCOMPARE(QVariant::fromValue(sample()).value<KColorSet>(), sample());
        QCOMPARE(QMetaType::fromName("KColorSet"), QMetaType::fromType<KColorSet>());
        KColorSet other = sample();
        other.setPressed(Qt::yellow);
        QVERIFY(other != sample());
        other = sample();
        other.setName(u"other"_s);
        QVERIFY(other != sample());
    }

    void unknownNames()
    {
        for (int i = 0; i < 3; ++i) {
            const KColorSet set = KThemeUtils::getColorSet("no-such-set", AppThemeType::Dark);
            QVERIFY(!set.isValid());
            QCOMPARE(set.name(), u"no-such-set"_s);
        }
        // Names are compared exactly.
        QLoggingCategory::setFilterRules(u"korvu.colorsets.warning=true"_s);
        QTest::ignoreMessage(QtWarningMsg, "Unknown colour set \"Text-primary\".");
        QVERIFY(!KThemeUtils::getColorSet("Text-primary", AppThemeType::Light).isValid());
        QCOMPARE(KThemeUtils::getColorSet({}, AppThemeType::Global), KColorSet());
    }

    void themeTypes()
    {
        const std::pair<QString, AppThemeType> types[] = {{u"global"_s, AppThemeType::Global},
                                                          {u"light"_s, AppThemeType::Light},
                                                          {u"dark"_s, AppThemeType::Dark},
                                                          {u"highContrast"_s, AppThemeType::HighContrast},
                                                          {QString(), AppThemeType::Global}};
        for (const auto &[name, type] : types)
            QCOMPARE(KThemeUtils::stringToThemeType(name), type);
        QTest::ignoreMessage(QtWarningMsg, "Unknown theme type \"Dark\".");
        for (int i = 0; i < 2; ++i)
            QCOMPARE(KThemeUtils::stringToThemeType(u"Dark"_s), AppThemeType::Global);
    }
};

QTEST_GUILESS_MAIN(tst_colorset)
#include "tst_colorset.moc"
