#include "WindowTest.h"

#include "UTPopOverData.h"

#include <QSignalSpy>

// A target in the middle of the window and a pop-over with a text field in it.
static const char scene[] = R"(
Window {
    id: scene
    x: 300; y: 200; width: 400; height: 300
    property alias popOver: popOver
    property Item target: targets.count > 0 ? targets.itemAt(0) : null
    function removeTarget() { targets.model = 0 }

    UTPopOverWrapper { model: null }
    Repeater {
        id: targets
        model: 1
        Rectangle { x: 150; y: 100; width: 80; height: 30; color: "silver"; focus: true }
    }
    UTPopOver {
        id: popOver
        objectName: "popOver"
        targetItem: scene.target
        accessibleName: "Details"
        content: FocusScope {
            implicitWidth: 120; implicitHeight: 60
            TextInput { objectName: "field"; focus: true; activeFocusOnTab: true; width: 100; height: 20 }
            TextInput { objectName: "second"; activeFocusOnTab: true; y: 30; width: 100; height: 20 }
        }
    }
})";

// Open before its window shows.
static const char openScene[] = R"(
Window {
    x: 300; y: 200; width: 400; height: 300
    Rectangle {
        objectName: "target"
        x: 150; y: 100; width: 80; height: 30; color: "silver"
        UTPopOver {
            objectName: "popOver"; active: true; showWithActive: false; automaticClose: false
            content: Rectangle { objectName: "content"; width: 119.5; height: 60 }
        }
    }
})";

class tst_PopOver : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensBesideItsTarget();
    void closes_data();
    void closes();
    void followsItsTarget();
    void openFromTheStart();
    void losesItsTarget();
    void delayedHide();
    void focusElsewhere();
    void withoutActivation();
    void hidesWithoutClosing();

private:
    QQuickWindow *popOverWindow() const
    {
        return qvariant_cast<QQuickWindow *>(m_popOver->property("windowComponentInstance"));
    }
    QQuickItem *target() const { return qvariant_cast<QQuickItem *>(window()->property("target")); }
    bool isActive() const { return m_popOver->property("active").toBool(); }
    void open(bool focused = true);
    void hide(bool delayed, int delay, bool checksMouse)
    {
        QMetaObject::invokeMethod(m_popOver, "hidePopOver", Q_ARG(QVariant, delayed), Q_ARG(QVariant, delay),
                                  Q_ARG(QVariant, checksMouse));
    }

    QObject *m_popOver = nullptr;
};

void tst_PopOver::init()
{
    SHOW(scene);
    m_popOver = object("popOver");
    QVERIFY(m_popOver);
}

void tst_PopOver::cleanup()
{
    closeScene();
}

void tst_PopOver::open(bool focused)
{
    QVERIFY(QMetaObject::invokeMethod(m_popOver, "showPopOver"));
    EVENTUALLY(popOverWindow() && popOverWindow()->isExposed());
    if (focused)
        EVENTUALLY(hasFocus(popOverWindow()));
}

void tst_PopOver::opensBesideItsTarget()
{
    QSignalSpy created(m_popOver, SIGNAL(popUpWindowCreated(QVariant)));
    open();
    QCOMPARE(created.count(), 1);
    QQuickWindow *const popOver = popOverWindow();
    QCOMPARE(popOver->objectName(), QStringLiteral("popOverWindow"));
    QCOMPARE(popOver->title(), QStringLiteral("Details"));
    QCOMPARE(popOver->transientParent(), window());
    // Balloon and arrow below the target with its margin of 2 and the gap of 2.
    EVENTUALLY(popOver->size() == QSize(120, 70));
    const QPoint below = target()->mapToGlobal(QPointF(40, 30)).toPoint();
    EVENTUALLY(popOver->position() == QPoint(below.x() - 1 - 60, below.y() + 3));
    // Nobody mixes windows on this display: what lies outside the balloon is cut off.
    QVERIFY(popOver->mask().contains(QPoint(60, 1)) && popOver->mask().contains(QPoint(60, 40)));
    QVERIFY(!popOver->mask().contains(QPoint(30, 5)) && !popOver->mask().contains(QPoint(119, 69)));

    auto *field = popOver->findChild<QQuickItem *>(QStringLiteral("field"));
    EVENTUALLY(field->hasActiveFocus());
    for (const bool isField : {false, true}) {
        QTest::keyClick(popOver, Qt::Key_Tab);
        QCOMPARE(field->hasActiveFocus(), isField);
    }
}

void tst_PopOver::closes_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"escape", "window manager", "function", "property"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void tst_PopOver::closes()
{
    QFETCH(QString, how);
    open();
    QSignalSpy escaped(m_popOver, SIGNAL(popoverEscapePressed()));
    const QPointer<QQuickWindow> popOver = popOverWindow();
    if (how == QLatin1StringView("escape"))
        QVERIFY(press("Escape", [&] { return !isActive(); }));
    else if (how == QLatin1StringView("window manager"))
        QVERIFY(press("alt+F4", [&] { return !isActive(); }));
    else if (how == QLatin1StringView("function"))
        hide(false, 0, false);
    else
        m_popOver->setProperty("active", false);
    EVENTUALLY(!isActive() && !popOver);
    QCOMPARE(escaped.count(), how == QLatin1StringView("escape") ? 1 : 0);
    if (how == QLatin1StringView("escape"))
        EVENTUALLY(hasFocus(window()));
    else
        QVERIFY(activate(window()));
    open(); // and again
}

void tst_PopOver::followsItsTarget()
{
    open();
    EVENTUALLY(popOverWindow()->height() == 70);
    const QPoint before = popOverWindow()->position();
    target()->setX(target()->x() + 25);
    QMetaObject::invokeMethod(m_popOver, "updatePosition");
    EVENTUALLY(popOverWindow()->position() == before + QPoint(25, 0));
    // At the right edge of the screen it is moved back, and its arrow the other way.
    window()->setX(1280 - 240);
    EVENTUALLY(popOverWindow()->x() + popOverWindow()->width() <= 1280);
}

void tst_PopOver::openFromTheStart()
{
    SHOW(openScene);
    m_popOver = object("popOver");
    QQuickItem *const target = item("target");
    const auto below = [&](int width) {
        const QPoint corner = target->mapToGlobal(QPointF(target->width(), target->height())).toPoint();
        return corner + QPoint(1 - int(target->width() / 2 + 2) - width / 2, 3);
    };
    EVENTUALLY(popOverWindow() && popOverWindow()->isExposed());
    EVENTUALLY(popOverWindow()->size() == QSize(120, 70) && popOverWindow()->position() == below(120));
    // It goes where its target's window goes, and away with it.
    window()->setPosition(400, 350);
    EVENTUALLY(window()->x() > 390 && popOverWindow()->position() == below(120));
    target->setWidth(100);
    EVENTUALLY(popOverWindow()->position() == below(120));
    window()->hide();
    EVENTUALLY(otherWindows().isEmpty());
    window()->show();
    EVENTUALLY(!otherWindows().isEmpty() && popOverWindow()->position() == below(120));
    // Larger than the screen it stays where it wants to be.
    popOverWindow()->findChild<QQuickItem *>(QStringLiteral("content"))->setWidth(3000);
    EVENTUALLY(popOverWindow()->width() == 3000 && popOverWindow()->x() == below(3000).x());
}

void tst_PopOver::losesItsTarget()
{
    open();
    QMetaObject::invokeMethod(window(), "removeTarget");
    EVENTUALLY(!isActive() && !popOverWindow());
    QVERIFY(activate(window()));
    // Without any target it opens in the corner of the screen.
    open();
}

void tst_PopOver::delayedHide()
{
    open();
    EVENTUALLY(popOverWindow()->height() == 70);
    QObject *timer = nullptr;
    for (QObject *child : m_popOver->children())
        timer = child->property("checksMouse").isValid() ? child : timer;
    QCursor::setPos(popOverWindow()->geometry().center());
    hide(true, 50, true);
    EVENTUALLY(!timer->property("running").toBool());
    QVERIFY2(isActive(), "the pointer is over it");
    hide(true, 50, true);
    QMetaObject::invokeMethod(m_popOver, "showPopOver");
    QVERIFY(!timer->property("running").toBool());
    QCursor::setPos(popOverWindow()->geometry().topLeft());
    hide(true, 50, true);
    EVENTUALLY(!isActive());
    open();
    QCursor::setPos(popOverWindow()->geometry().center());
    hide(true, -50, false); // at once
    EVENTUALLY(!isActive());
}

void tst_PopOver::focusElsewhere()
{
    open();
    QQuickWindow child;
    child.setTransientParent(popOverWindow());
    child.setGeometry(800, 500, 100, 50);
    child.show();
    QVERIFY(activate(&child));
    QVERIFY2(isActive(), "a window of its own took the focus");
    QVERIFY(activate(window()));
    EVENTUALLY(!isActive());

    // A click at the target, which may know better; this one does nothing.
    open();
    const QPoint place = globalCenter(target());
    QVERIFY(user(QStringLiteral("mousemove %1 %2 click 1").arg(place.x()).arg(place.y())));
    EVENTUALLY(!isActive());

    m_popOver->setProperty("automaticClose", false);
    QSignalSpy activations(m_popOver, SIGNAL(popoverWindowActiveChanged(bool)));
    open();
    QVERIFY(activate(window()));
    QVERIFY(isActive());
    EVENTUALLY(activations == QList<QVariantList>({{true}, {false}}));
}

void tst_PopOver::withoutActivation()
{
    m_popOver->setProperty("showWithActive", false);
    open(false);
    QVERIFY(hasFocus(window()));
    QVERIFY(isActive());
}

void tst_PopOver::hidesWithoutClosing()
{
    open();
    m_popOver->setProperty("automaticClose", false);
    const QPointer<QQuickWindow> popOver = popOverWindow();
    QMetaObject::invokeMethod(m_popOver, "hide");
    EVENTUALLY(!popOver->isVisible());
    QVERIFY(isActive());
    QMetaObject::invokeMethod(m_popOver, "show");
    EVENTUALLY(popOver->isExposed());
    QCOMPARE(popOverWindow(), popOver);
}

QTEST_MAIN(tst_PopOver)
#include "tst_popover.moc"
