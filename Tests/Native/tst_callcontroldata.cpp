#include "UTCallControlButtonData.h"

#include <App.h>
#include <KFont.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

using namespace UTCallControlButtonEnum;

class UTCallControlButton : public QObject
{
    Q_OBJECT
};

namespace {

// The outputs that follow from type and size.
const QList<QByteArray> metrics = {"leftSideLeftPadding",   "leftSideRightPadding", "leftIconSize",
                                   "textLeftMargin",        "separatorHeight",      "rightSideLeftPadding",
                                   "rightSideRightPadding", "rightIconSize"};

QVariantList values(const QObject &object, const QList<QByteArray> &names)
{
    QVariantList list;
    for (const QByteArray &name : names)
        list.append(object.property(name));
    return list;
}

} // namespace

class tst_CallControlData : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void record()
    {
        QByteArray name = sender()->metaObject()->method(senderSignalIndex()).name();
        m_signals.append(name.chopped(qstrlen("Changed")));
    }

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        m_signals.clear();
    }
    void rows_data();
    void rows();
    void orderOfSignals();
    void typeWaitsForSize();
    void panelPadding();
    void styles();
    void largeAssistantKeepsTheRightHalf();
    void unknownNumbers_data();
    void unknownNumbers();
    void wrongComponent();
    void textScale();

private:
    void recordAll(const QObject &data)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("record()"));
        for (int i = 0; i < data.metaObject()->propertyCount(); ++i) {
            if (data.metaObject()->property(i).hasNotifySignal())
                connect(&data, data.metaObject()->property(i).notifySignal(), this, slot);
        }
    }

    UTCallControlButton m_button;
    QList<QByteArray> m_signals;
};

void tst_CallControlData::rows_data()
{
    QTest::addColumn<ButtonType>("type");
    QTest::addColumn<ButtonSize>("size");
    QTest::addColumn<int>("height");
    QTest::addColumn<QVariantList>("expected");

    const QSize no(0, 0);
    QTest::newRow("dual icon") << DualIcon << Small << 32
                               << QVariantList{12, 4, QSize(16, 16), 4, 16, 4, 12, QSize(16, 16)};
    QTest::newRow("dual types vanish") << DualArrow << ExtremeSmall << 28 << QVariantList{0, 0, no, 0, 0, 0, 0, no};
    QTest::newRow("smallest round") << Round << ExtremeSmall << 28 << QVariantList{6, 6, QSize(16, 16), 0, 0, 0, 0, no};
    QTest::newRow("wide icon") << KorvuAssistantLarge << Medium << 40
                               << QVariantList{0, 0, QSize(64, 40), 0, 0, 0, 0, no};
}

void tst_CallControlData::rows()
{
    QFETCH(ButtonType, type);
    QFETCH(ButtonSize, size);
    UTCallControlButtonData data(&m_button);
    data.setButtonType(type);
    data.setButtonSize(size);
    data.updateButtonSize();
    QTEST(data.height(), "height");
    QTEST(values(data, metrics), "expected");
    QCOMPARE(data.separatorVisible(), type == DualIcon);
    QCOMPARE(data.canShowText(), type == DualIcon || type == DualArrow);
    QVERIFY(data.canShowBadge() == (type != KorvuAssistantLarge));
    QCOMPARE(data.font(), KFont(size == ExtremeSmall ? KFont::BodySecondarySemibold : KFont::BodyPrimarySemibold));
}

void tst_CallControlData::orderOfSignals()
{
    UTCallControlButtonData data(&m_button);
    recordAll(data);
    data.setButtonType(DualIcon);
    QCOMPARE(m_signals, QList<QByteArray>({"canShowText", "separatorVisible", "buttonType"})); // the right half stays
    data.updateButtonSize();
    m_signals.clear();
    data.setButtonSize(Small);
    QList<QByteArray> expected = metrics;
    expected.removeOne("textLeftMargin"); // the same in both sizes, as the font
    QCOMPARE(m_signals, QList<QByteArray>({"height"}) + expected + QList<QByteArray>({"buttonSize"}));
    m_signals.clear();
    data.setButtonSize(Small);
    data.updateButtonSize();
    data.updateButtonType();
    data.updateButtonStyle();
    QVERIFY(m_signals.isEmpty());
}

void tst_CallControlData::typeWaitsForSize()
{
    UTCallControlButtonData data(&m_button);
    const QVariantList before = values(data, metrics);
    data.setButtonType(Round);
    QVERIFY(!data.canShowText() && !data.separatorVisible() && !data.rightButtonVisible());
    QCOMPARE(values(data, metrics), before);
    data.updateButtonSize();
    QCOMPARE(values(data, metrics), QVariantList({10, 10, QSize(20, 20), 0, 0, 0, 0, QSize(0, 0)}));
}

void tst_CallControlData::panelPadding()
{
    UTCallControlButtonData data(&m_button);
    data.setShowText(true);
    data.setButtonType(Panel); // the rule follows the type at once, unlike the rest
    const int withLabel[] = {16, 12, 10};
    const int without[] = {10, 8, 6};
    for (ButtonSize size : {Medium, Small, ExtremeSmall}) {
        data.setButtonSize(size);
        data.setShowText(true);
        QCOMPARE(data.leftSideLeftPadding(), withLabel[size]);
        QCOMPARE(data.leftSideRightPadding(), withLabel[size]);
        data.setShowText(false);
        QCOMPARE(data.leftSideLeftPadding(), without[size]);
        data.updateButtonSize();
        QCOMPARE(data.leftSideRightPadding(), without[size]);
    }
    data.setButtonSize(ButtonSize(3));
    data.setShowText(true);
    QCOMPARE(data.leftSideLeftPadding(), without[ExtremeSmall]);
    data.setButtonType(Round);
    data.setButtonSize(Small);
    data.setShowText(false);
    QCOMPARE(data.leftSideLeftPadding(), 8);
}

void tst_CallControlData::styles()
{
    const QList<QByteArray> names = {"backgroundColorSetName", "checkedBackgroundColorSetName", "borderColorSetName",
                                     "textColorSetName"};
    UTCallControlButtonData data(&m_button);
    const QVariantList secondary = values(data, names);
    data.setButtonStyle(Ghost);
    const QVariantList ghost = values(data, names);
    QCOMPARE(ghost.first(2), secondary.first(2));
    QCOMPARE(ghost.last(2), QVariantList({QString(), QStringLiteral("button-ghost-text")}));
    recordAll(data);
    data.setButtonState(Active);
    QCOMPARE(m_signals, QList<QByteArray>({"backgroundColorSetName", "textColorSetName", "buttonState"}));
    QCOMPARE(data.backgroundColorSetName(), data.checkedBackgroundColorSetName());
    QCOMPARE(data.textColorSetName(), QStringLiteral("button-ghost-active-text"));
    for (ButtonStyle style : {CommonSecondary, Cancel, Join}) {
        data.setButtonStyle(style); // the state is the ghost's alone
        QCOMPARE(data.backgroundColorSetName(), data.checkedBackgroundColorSetName());
        QVERIFY(!data.borderColorSetName().isEmpty());
    }
    data.setButtonStyle(Secondary);
    QCOMPARE(values(data, names), secondary);
}

void tst_CallControlData::largeAssistantKeepsTheRightHalf()
{
    UTCallControlButtonData data(&m_button);
    for (ButtonType before : {DualIcon, Round}) {
        data.setButtonType(before);
        data.setButtonType(KorvuAssistantLarge);
        QCOMPARE(data.rightButtonVisible(), before == DualIcon);
        QVERIFY(!data.separatorVisible() && !data.canShowBadge());
    }
}

void tst_CallControlData::unknownNumbers_data()
{
    QTest::addColumn<int>("number");
    for (int number : {-1, 7, 1 << 30})
        QTest::addRow("%d", number) << number;
}

void tst_CallControlData::unknownNumbers()
{
    QFETCH(int, number);
    UTCallControlButtonData data(&m_button);
    recordAll(data);
    data.setButtonType(ButtonType(number));
    data.setButtonSize(ButtonSize(number));
    data.setButtonStyle(ButtonStyle(number));
    data.setButtonState(ButtonState(number));
    data.setShowText(true);
    QCOMPARE(m_signals, QList<QByteArray>({"buttonType", "buttonSize", "buttonStyle", "buttonState", "showText"}));
}

void tst_CallControlData::wrongComponent()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "This property can't be used outside it's supported component (UTCallControlButton).");
    UTCallControlButtonData data(this);
    recordAll(data);
    data.setButtonType(Panel);
    data.setButtonSize(Small);
    data.setButtonStyle(Cancel);
    data.setShowText(true);
    QCOMPARE(m_signals, QList<QByteArray>({"buttonType", "buttonSize", "buttonStyle", "showText"}));
    QVERIFY(data.height() == 0 && data.backgroundColorSetName().isEmpty());
}

void tst_CallControlData::textScale()
{
    UTCallControlButtonData data(&m_button);
    data.setHeight(99); // metrics that a component wrote stay
    App::instance()->setTextScale(2);
    QCOMPARE(data.font(), KFont(KFont::BodyPrimarySemibold));
    QCOMPARE(data.height(), 99);
    App::instance()->setTextScale(1);
}

QTEST_MAIN(tst_CallControlData)
#include "tst_callcontroldata.moc"
