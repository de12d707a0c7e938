#include "WindowTest.h"

static const char scene[] = R"(
Window {
    x: 300; y: 200; width: 400; height: 300
    UTMoreInfoButton {
        objectName: "button"
        x: 150; y: 100
        focus: true
        tooltip: "About presence"
        moreInfoText: "Others see when you were last here. <a href='https://example.org'>More</a>"
        includeHyperLink: true
        maximumPopoverWidth: 160
    }
})";

class tst_MoreInfoButton : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void keyboard();
};

void tst_MoreInfoButton::keyboard()
{
    SHOW(scene);
    QQuickItem *const button = item("button");
    const auto isOpen = [button] { return button->property("popupActive").toBool(); };
    for (int time = 0; time < 2; ++time) {
        QVERIFY(activate(window()));
        QVERIFY(user(QStringLiteral("key space")));
        EVENTUALLY(isOpen() && !otherWindows().isEmpty());
        const QQuickWindow *const balloon = otherWindows().constFirst();
        EVENTUALLY(hasFocus(balloon));
        QCOMPARE(balloon->title(), QStringLiteral("About presence"));
        EVENTUALLY(balloon->width() == 160);
        QVERIFY(user(QStringLiteral("key Escape")));
        EVENTUALLY(!isOpen() && hasFocus(window()));
        QVERIFY(button->hasActiveFocus());
    }
    // The same button opens and closes it, though the focus leaves the balloon before the click comes.
    const QPoint place = globalCenter(button);
    for (const bool opens : {true, false}) {
        QVERIFY(user(
            QStringLiteral("mousemove %1 %2 sleep 0.1 mousedown 1 sleep 0.2 mouseup 1").arg(place.x()).arg(place.y())));
        EVENTUALLY(isOpen() == opens && button->property("down").toBool() == false);
        if (opens)
            EVENTUALLY(!otherWindows().isEmpty() && hasFocus(otherWindows().constFirst()));
        else
            EVENTUALLY(otherWindows().isEmpty() && hasFocus(window()));
        QVERIFY(isOpen() == opens);
    }
    // Nothing to say, nothing to open.
    button->setProperty("moreInfoText", QString());
    QVERIFY(user(QStringLiteral("key space")));
    QVERIFY(activate(window()));
    QVERIFY(!isOpen());
    closeScene();
}

QTEST_MAIN(tst_MoreInfoButton)
#include "tst_moreinfobutton.moc"
