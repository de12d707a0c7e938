#include <QCursor>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000; // milliseconds that anything may take on a busy machine

constexpr const char *scene = R"(
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0

Window {
    width: 400; height: 200; x: 300; y: 200
    visible: true

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

} // namespace

//! Tool tips as a user of a desktop meets them.
class tst_ToolTipWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pointerMovesOn();
    void focusByKeyboard();
    void windowCloses();

private:
    void point(const char *target);
    QWindowList tips() const;
    //! The text of the one tool tip that shows; "?" for several.
    QString tip() const;

    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

void tst_ToolTipWindows::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    QCursor::setPos(5, 5);
    m_engine = std::make_unique<QQmlApplicationEngine>();
    m_engine->loadData(scene);
    m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().value(0));
    QVERIFY(m_window);
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isExposed(), patience);
    m_window->requestActivate();
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isActive(), patience);
}

void tst_ToolTipWindows::cleanup()
{
    m_engine.reset();
    QTRY_VERIFY_WITH_TIMEOUT(tips().isEmpty(), patience);
    QVERIFY(QGuiApplication::allWindows().isEmpty());
}

void tst_ToolTipWindows::point(const char *target)
{
    const auto *item = m_window->findChild<QQuickItem *>(QLatin1StringView(target));
    // Two steps: a pointer that already stands there would cause no event.
    QCursor::setPos(item->mapToGlobal(QPointF(2, 2)).toPoint());
    QCursor::setPos(item->mapToGlobal(QPointF(10, 10)).toPoint());
}

QWindowList tst_ToolTipWindows::tips() const
{
    QWindowList windows = QGuiApplication::allWindows();
    windows.removeIf([](const QWindow *window) { return window->type() != Qt::ToolTip || !window->isVisible(); });
    return windows;
}

QString tst_ToolTipWindows::tip() const
{
    const QWindowList windows = tips();
    if (windows.size() != 1)
        return windows.isEmpty() ? QString() : u"?"_s;
    const auto *content = static_cast<QQuickWindow *>(windows.first())->contentItem()->childItems().value(0);
    const auto *item = content->childItems().value(0);
    return item && windows.first()->isExposed() ? item->property("tooltipText").toString() : QString();
}

void tst_ToolTipWindows::pointerMovesOn()
{
    point("first");
    QTRY_COMPARE_WITH_TIMEOUT(tip(), u"First"_s, patience);
    const QRect target(m_window->findChild<QQuickItem *>(u"first"_s)->mapToGlobal(QPointF()).toPoint(), QSize(80, 30));
    QVERIFY(!tips().constFirst()->geometry().intersects(target));
    QVERIFY(m_window->isActive());

    point("second");
    QTRY_COMPARE_WITH_TIMEOUT(tip(), u"Second"_s, patience);
    QVERIFY(m_window->isActive());
    QCursor::setPos(5, 5);
    QTRY_COMPARE_WITH_TIMEOUT(tip(), QString(), patience);
}

void tst_ToolTipWindows::focusByKeyboard()
{
    const auto press = [] { return QProcess::execute(u"xdotool"_s, {u"key"_s, u"Tab"_s}); };
    QCOMPARE(press(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(tip(), u"First"_s, patience);
    QCOMPARE(press(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(tip(), u"Second"_s, patience);
    QVERIFY(m_window->isActive());

    // Nobody points at it: once it has moved, the tool tip goes.
    m_window->setX(m_window->x() + 40);
    QTRY_COMPARE_WITH_TIMEOUT(tip(), QString(), patience);
}

void tst_ToolTipWindows::windowCloses()
{
    for (const char *target : {"first", "second"}) {
        m_window->show();
        QTRY_VERIFY_WITH_TIMEOUT(m_window->isExposed(), patience);
        QCursor::setPos(5, 5);
        point(target);
        QTRY_VERIFY_WITH_TIMEOUT(!tip().isEmpty(), patience);
        m_window->hide();
        QTRY_VERIFY_WITH_TIMEOUT(tips().isEmpty(), patience);
    }
}

QTEST_MAIN(tst_ToolTipWindows)
#include "tst_tooltipwindows.moc"
