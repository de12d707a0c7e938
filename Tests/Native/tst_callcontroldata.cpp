#include "DataTest.h"
#include "UTCallControlButtonData.h"

#include <KFont.h>

#include <QMetaMethod>

using namespace Qt::StringLiterals;
using namespace UTCallControlButtonEnum;

// The outputs that follow from type and size.
static constexpr char metrics[] =
    "leftSideLeftPadding leftSideRightPadding leftIconSize textLeftMargin separatorHeight "
    "rightSideLeftPadding rightSideRightPadding rightIconSize";

class tst_CallControlData : public DataTest
{
    Q_OBJECT

public Q_SLOTS:
    void record()
    {
        QByteArray name = sender()->metaObject()->method(senderSignalIndex()).name();
        m_signals.append(name.chopped(qstrlen("Changed")));
    }

private Q_SLOTS:
    void rows_data()
    {
        const Table<ButtonType, ButtonSize, int, QVariantList> row{"type", "size", "height", "expected"};
        const QSize no(0, 0);
        row("dual icon", DualIcon, Small, 32, {12, 4, QSize(16, 16), 4, 16, 4, 12, QSize(16, 16)});
        row("dual types vanish", DualArrow, ExtremeSmall, 28, {0, 0, no, 0, 0, 0, 0, no});
        row("smallest round", Round, ExtremeSmall, 28, {6, 6, QSize(16, 16), 0, 0, 0, 0, no});
        row("wide icon", KorvuAssistantLarge, Medium, 40, {0, 0, QSize(64, 40), 0, 0, 0, 0, no});
    }

    void rows()
    {
        QFETCH(ButtonType, type);
        QFETCH(ButtonSize, size);
        Attached<UTCallControlButtonData> data;
        data->setButtonType(type);
        data->setButtonSize(size);
        data->updateButtonSize();
        QTEST(data->height(), "height");
        QTEST(values(*data, metrics), "expected");
        QCOMPARE(data->separatorVisible(), type == DualIcon);
        QCOMPARE(data->canShowText(), type == DualIcon || type == DualArrow);
        QVERIFY(data->canShowBadge() == (type != KorvuAssistantLarge));
        QCOMPARE(data->font(), KFont(size == ExtremeSmall ? KFont::BodySecondarySemibold : KFont::BodyPrimarySemibold));
    }

    void orderOfSignals()
    {
        Attached<UTCallControlButtonData> data;
        recordAll(*data);
        data->setButtonType(DualIcon);
        QCOMPARE(takeSignals(), "canShowText separatorVisible buttonType"); // the right half stays
        data->updateButtonSize();
        takeSignals();
        data->setButtonSize(Small);
        const QByteArray changed =
            QByteArray(metrics).replace("textLeftMargin ", ""); // the same in both sizes, as the font
        QCOMPARE(takeSignals(), "height " + changed + " buttonSize");
        data->setButtonSize(Small);
        data->updateButtonSize();
        data->updateButtonType();
        data->updateButtonStyle();
        QCOMPARE(takeSignals(), "");
    }

    void typeWaitsForSize()
    {
        Attached<UTCallControlButtonData> data;
        const QVariantList before = values(*data, metrics);
        data->setButtonType(Round);
        QVERIFY(!data->canShowText() && !data->separatorVisible() && !data->rightButtonVisible());
        QCOMPARE(values(*data, metrics), before);
        data->updateButtonSize();
        QCOMPARE(values(*data, metrics), QVariantList({10, 10, QSize(20, 20), 0, 0, 0, 0, QSize(0, 0)}));
    }

    void panelPadding()
    {
        Attached<UTCallControlButtonData> data;
        data->setShowText(true);
        data->setButtonType(Panel); // the rule follows the type at once, unlike the rest
        const int withLabel[] = {16, 12, 10};
        const int without[] = {10, 8, 6};
        for (ButtonSize size : {Medium, Small, ExtremeSmall}) {
            data->setButtonSize(size);
            data->setShowText(true);
            QCOMPARE(data->leftSideLeftPadding(), withLabel[size]);
            QCOMPARE(data->leftSideRightPadding(), withLabel[size]);
            data->setShowText(false);
            QCOMPARE(data->leftSideLeftPadding(), without[size]);
            data->updateButtonSize();
            QCOMPARE(data->leftSideRightPadding(), without[size]);
        }
        data->setButtonSize(ButtonSize(3));
        data->setShowText(true);
        QCOMPARE(data->leftSideLeftPadding(), without[ExtremeSmall]);
        data->setButtonType(Round);
        data->setButtonSize(Small);
        data->setShowText(false);
        QCOMPARE(data->leftSideLeftPadding(), 8);
    }

    void styles()
    {
        const char names[] = "backgroundColorSetName checkedBackgroundColorSetName borderColorSetName textColorSetName";
        Attached<UTCallControlButtonData> data;
        const QVariantList secondary = values(*data, names);
        data->setButtonStyle(Ghost);
        const QVariantList ghost = values(*data, names);
        QCOMPARE(ghost.first(2), secondary.first(2));
        QCOMPARE(ghost.last(2), QVariantList({QString(), u"button-ghost-text"_s}));
        recordAll(*data);
        data->setButtonState(Active);
        QCOMPARE(takeSignals(), "backgroundColorSetName textColorSet textColorSetName buttonState");
        QCOMPARE(data->backgroundColorSetName(), data->checkedBackgroundColorSetName());
        QCOMPARE(data->textColorSetName(), u"button-ghost-active-text"_s);
        QCOMPARE(data->textColorSet(), App::instance()->getColorSet(data->textColorSetName()));
        for (ButtonStyle style : {CommonSecondary, Cancel, Join}) {
            data->setButtonStyle(style); // the state is the ghost's alone
            QCOMPARE(data->backgroundColorSetName(), data->checkedBackgroundColorSetName());
            QVERIFY(!data->borderColorSetName().isEmpty());
        }
        data->setButtonStyle(Secondary);
        QCOMPARE(values(*data, names), secondary);
    }

    void largeAssistantKeepsTheRightHalf()
    {
        Attached<UTCallControlButtonData> data;
        for (ButtonType before : {DualIcon, Round}) {
            data->setButtonType(before);
            data->setButtonType(KorvuAssistantLarge);
            QCOMPARE(data->rightButtonVisible(), before == DualIcon);
            QVERIFY(!data->separatorVisible() && !data->canShowBadge());
        }
    }

    void unknownNumbers()
    {
        for (int number : {-1, 7, 1 << 30}) {
            Attached<UTCallControlButtonData> data;
            recordAll(*data);
            data->setButtonType(ButtonType(number));
            data->setButtonSize(ButtonSize(number));
            data->setButtonStyle(ButtonStyle(number));
            data->setButtonState(ButtonState(number));
            data->setShowText(true);
            QCOMPARE(takeSignals(), "buttonType buttonSize buttonStyle buttonState showText");
        }
    }

    void textScale()
    {
        Attached<UTCallControlButtonData> data;
        data->setHeight(99); // metrics that a component wrote stay
        App::instance()->setTextScale(2);
        QCOMPARE(data->font(), KFont(KFont::BodyPrimarySemibold));
        QCOMPARE(data->height(), 99);
    }

private:
    void recordAll(const QObject &data)
    {
        m_signals.clear();
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("record()"));
        for (int i = 0; i < data.metaObject()->propertyCount(); ++i) {
            if (data.metaObject()->property(i).hasNotifySignal())
                connect(&data, data.metaObject()->property(i).notifySignal(), this, slot);
        }
    }

    QByteArray takeSignals() { return std::exchange(m_signals, {}).join(' '); }

    QList<QByteArray> m_signals;
};

QTEST_MAIN(tst_CallControlData)
#include "tst_callcontroldata.moc"
