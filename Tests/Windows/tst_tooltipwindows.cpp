#include "WindowTest.h"

using namespace Qt::StringLiterals;

static const char scene[] = R"(
Window {
    width: 400; height: 200; x: 300; y: 200

    component Target: Rectangle {
        readonly property alias pointed: pointer.hovered
        y: 60; width: 80; height: 30
        color: "silver"
        activeFocusOnTab: true
        HoverHandler { id: pointer }
    }
    Target {
        id: first
        objectName: "first"; x: 20
        ToolTipWithWindow { tooltipText: "First"; active: first.pointed || first.activeFocus && App.isKeyboardFocus }
    }
    Target {
        id: second
        objectName: "second"; x: 140
        UTToolTip {
            anchors.fill: parent
            tooltipText: "Second"; tooltipStyle: UTTooltipEnum.Customized
            hovered: second.pointed; focused: second.activeFocus && App.isKeyboardFocus
            onShowToolTip: tooltipWindow = ToolTipWindowManager.getWindow(this, true)
        }
    }
})";

//! Tool tips as a user of a desktop meets them.
class tst_ToolTipWindows : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SHOW(scene); }
    void cleanup();
    void pointerMovesOn();
    void focusByKeyboard();
    void windowCloses();

private:
    void point(const char *target);
    //! The text of the one tool tip that shows; "?" for several.
    QString tip() const;
};

void tst_ToolTipWindows::cleanup()
{
    closeScene();
    EVENTUALLY(QGuiApplication::allWindows().isEmpty());
}

void tst_ToolTipWindows::point(const char *target)
{
    // Two steps: a pointer that already stands there would cause no event.
    QCursor::setPos(globalCenter(item(target)) - QPoint(8, 8));
    QCursor::setPos(globalCenter(item(target)));
}

QString tst_ToolTipWindows::tip() const
{
    const QList<QQuickWindow *> windows = otherWindows();
    if (windows.size() != 1)
        return windows.isEmpty() ? QString() : u"?"_s;
    const QQuickItem *content = windows.first()->contentItem()->childItems().value(0)->childItems().value(0);
    return content && windows.first()->isExposed() ? content->property("tooltipText").toString() : QString();
}

void tst_ToolTipWindows::pointerMovesOn()
{
    for (const char *target : {"first", "second"}) {
        point(target);
        EVENTUALLY(tip().toLower() == QLatin1StringView(target));
        const QRectF covered(item(target)->mapToGlobal(QPointF()), item(target)->size());
        QVERIFY(!QRectF(otherWindows().constFirst()->geometry()).intersects(covered));
        EVENTUALLY(hasFocus(window()));
    }
    QCursor::setPos(5, 5);
    EVENTUALLY(tip().isEmpty());
}

void tst_ToolTipWindows::focusByKeyboard()
{
    for (const char *target : {"first", "second"}) {
        QVERIFY(user(u"key Tab"_s));
        EVENTUALLY(tip().toLower() == QLatin1StringView(target));
        EVENTUALLY(hasFocus(window()));
    }
    // Nobody points at it: once it has moved, the tool tip goes.
    window()->setX(window()->x() + 40);
    EVENTUALLY(tip().isEmpty());
}

void tst_ToolTipWindows::windowCloses()
{
    for (const char *target : {"first", "second"}) {
        window()->show();
        EVENTUALLY(window()->isExposed());
        QCursor::setPos(5, 5);
        point(target);
        EVENTUALLY(!tip().isEmpty());
        window()->hide();
        EVENTUALLY(otherWindows().isEmpty());
    }
}

QTEST_MAIN(tst_ToolTipWindows)
#include "tst_tooltipwindows.moc"
