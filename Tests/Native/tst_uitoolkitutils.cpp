#include <QDesktopServices>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <memory>

#include "KFont.h"
#include "UIToolKitUtils.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
Window {
    width: 200; height: 200
    visible: true
    property var keys: []
    Item {
        objectName: "parent"
        Keys.onPressed: event => { keys.push("parent " + event.key); event.accepted = event.key === Qt.Key_A }
        Item {
            objectName: "child"
            activeFocusOnTab: true
            Keys.onPressed: event => { keys.push("child " + event.key + " " + event.modifiers + event.text); event.accepted = event.key === Qt.Key_B }
            Keys.onReleased: event => { keys.push("released " + event.key) }
        }
        Item { objectName: "passive" }
    }
    Item { objectName: "next"; activeFocusOnTab: true }
}
)";

} // namespace

class tst_UIToolKitUtils : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void recordUrl(const QUrl &url) { m_opened.append(url); }

private Q_SLOTS:
    void init();
    void simulatedKeys();
    void simulatedTabs();
    void deletionDuringKey();
    void screenIndex();
    void windowAncestry();
    void textBounds();
    void links_data();
    void links();
    void openLink();
    void htmlToPlainText();
    void delayedSpeech();

private:
    std::unique_ptr<QQuickWindow> createScene();

    QQmlEngine m_engine;
    QList<QUrl> m_opened;
};

void tst_UIToolKitUtils::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_opened.clear();
    QVERIFY(UIToolKitUtils::instance()->isQt6Used());
}

std::unique_ptr<QQuickWindow> tst_UIToolKitUtils::createScene()
{
    QQmlComponent component(&m_engine);
    component.setData(sceneSource, {});
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow *>(component.create()));
    window->requestActivate();
    return QTest::qWaitForWindowActive(window.get()) ? std::move(window) : nullptr;
}

void tst_UIToolKitUtils::simulatedKeys()
{
    const auto window = createScene();
    QVERIFY(window);
    auto *child = window->findChild<QQuickItem *>(u"child"_s);
    auto *utils = UIToolKitUtils::instance();

    QVERIFY(utils->simulateKeyEvent(child, Qt::Key_A, Qt::ShiftModifier, u"A"_s));
    QVERIFY(utils->simulateKeyEvent(child, Qt::Key_B));
    QVERIFY(!utils->simulateKeyEvent(child, Qt::Key_C));
    const QStringList expected = {
        u"child 65 33554432A"_s, u"parent 65"_s,  u"released 65"_s, u"child 66 0"_s,
        u"released 66"_s,        u"child 67 0"_s, u"parent 67"_s,   u"released 67"_s,
    };
    QCOMPARE(window->property("keys").toStringList(), expected);

    child->forceActiveFocus();
    window->setProperty("keys", QStringList());
    QVERIFY(utils->simulateKeyEvent(window.get(), Qt::Key_B));
    QCOMPARE(window->property("keys").toStringList().constFirst(), u"child 66 0"_s);
    QVERIFY(!utils->simulateKeyEvent(nullptr, Qt::Key_B));
}

void tst_UIToolKitUtils::simulatedTabs()
{
    const auto window = createScene();
    QVERIFY(window);
    auto *child = window->findChild<QQuickItem *>(u"child"_s);
    auto *next = window->findChild<QQuickItem *>(u"next"_s);
    auto *utils = UIToolKitUtils::instance();

    QVERIFY(utils->simulateKeyEvent(child, Qt::Key_Tab));
    QCOMPARE(window->activeFocusItem(), next);
    QVERIFY(utils->simulateKeyEvent(next, Qt::Key_Backtab));
    QCOMPARE(window->activeFocusItem(), child);
    // An item that is no stop itself sends the focus on from its own place.
    QVERIFY(utils->simulateKeyEvent(window->findChild<QQuickItem *>(u"passive"_s), Qt::Key_Tab));
    QCOMPARE(window->activeFocusItem(), next);
}

void tst_UIToolKitUtils::deletionDuringKey()
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick; Item { id: dying; signal pressed(); Keys.onPressed: dying.pressed() }", {});
    auto *item = qobject_cast<QQuickItem *>(component.create());
    bool pressed = false;
    connect(item, SIGNAL(pressed()), item, SLOT(deleteLater()));
    connect(item, &QObject::destroyed, this, [&] { pressed = true; });
    UIToolKitUtils::instance()->simulateKeyEvent(item, Qt::Key_A);
    QTRY_VERIFY(pressed);
}

void tst_UIToolKitUtils::screenIndex()
{
    auto *utils = UIToolKitUtils::instance();
    const QRectF geometry = QGuiApplication::screens().constFirst()->geometry();
    QCOMPARE(utils->getScreenIndexFromPoint(geometry.topLeft()), 0);
    QCOMPARE(utils->getScreenIndexFromPoint(geometry.bottomRight() - QPointF(0.5, 0.5)), 0);
    QCOMPARE(utils->getScreenIndexFromPoint(geometry.bottomRight()), -1);
    QCOMPARE(utils->getScreenIndexFromPoint(QPointF(-1e7, 0)), -1);
}

void tst_UIToolKitUtils::windowAncestry()
{
    auto *utils = UIToolKitUtils::instance();
    QQuickWindow top;
    QQuickWindow transient;
    transient.setTransientParent(&top);
    QQuickWindow grandchild;
    grandchild.setTransientParent(&transient);
    QVERIFY(utils->isAncestorOf(&top, &grandchild));
    QVERIFY(!utils->isAncestorOf(&grandchild, &top));
    QVERIFY(!utils->isAncestorOf(&top, &top));
    QVERIFY(!utils->isAncestorOf(nullptr, &top));
    QVERIFY(!utils->isAncestorOf(&top, nullptr));
}

void tst_UIToolKitUtils::textBounds()
{
    auto *utils = UIToolKitUtils::instance();
    const KFont font(KFont::BodyPrimary);
    const QString text = u"a text of some words"_s;
    const QRectF line = utils->getTextBoundingRect(text, font);
    QVERIFY(qAbs(line.width() - QFontMetricsF(font).horizontalAdvance(text)) < 1);
    QCOMPARE(utils->getTextBoundingRect(text, font, line.width() + 1), line);

    const QRectF wrapped = utils->getTextBoundingRect(text, font, line.width() / 2);
    QVERIFY(wrapped.width() <= line.width() / 2);
    QVERIFY(wrapped.height() > line.height());
    const QRectF longWord = utils->getTextBoundingRect(u"wwwwwwwwwwwwwwwwwwww"_s, font, 40);
    QVERIFY(longWord.width() <= 40);
    QCOMPARE(utils->getTextBoundingRect(u"a\nb"_s, font).height(), 2 * line.height());
    QCOMPARE(utils->getTextBoundingRect(QString(), font).width(), 0.0);
}

void tst_UIToolKitUtils::links_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<bool>("link");
    QTest::newRow("anchor") << u"see <a href=\"https://example.org\">here</a>"_s << true;
    QTest::newRow("spelling") << u"<A class=x\nHREF = x>y</A>"_s << true;
    QTest::newRow("no target") << u"<a name=x>y</a><a href=''>z</a>"_s << false;
    QTest::newRow("bare address") << u"https://example.org"_s << false;
    QTest::newRow("commented out") << u"<!-- <a href='x'> -->"_s << false;
    QTest::newRow("escaped") << u"&lt;a href='x'&gt;"_s << false;
    QTest::newRow("other element") << u"<area href='x'><b data-href='x'>"_s << false;
}

void tst_UIToolKitUtils::links()
{
    QFETCH(QString, html);
    QFETCH(bool, link);
    QCOMPARE(UIToolKitUtils::instance()->hasLinkInText(html), link);
}

void tst_UIToolKitUtils::openLink()
{
    const QStringList schemes = {u"http"_s, u"https"_s, u"mailto"_s, u"file"_s, u"testscheme"_s};
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "recordUrl");

    auto *utils = UIToolKitUtils::instance();
    QVERIFY(utils->openLink(u"https://example.org/a?b#c"_s));
    QVERIFY(utils->openLink(u"www.example.org"_s));
    QVERIFY(utils->openLink(u"mailto:a@example.org"_s));
    const QList<QUrl> expected = {QUrl(u"https://example.org/a?b#c"_s), QUrl(u"http://www.example.org"_s),
                                  QUrl(u"mailto:a@example.org"_s)};
    QCOMPARE(m_opened, expected);

    QVERIFY(!utils->openLink(QString()));
    QVERIFY(!utils->openLink(u"  "_s));
    for (const QString &link : {u"javascript:alert(1)"_s, u"file:///etc/passwd"_s, u"/etc/passwd"_s,
                                u"data:text/html,x"_s, u"testscheme:x"_s, u"JavaScript:alert(1)"_s, u"qrc:/x"_s}) {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^UIToolKitUtils: links of the scheme \".*\" are not opened$"_s));
        QVERIFY(!utils->openLink(link));
    }
    QCOMPARE(m_opened.size(), expected.size());

    utils->addLinkScheme(u"TestScheme"_s);
    QVERIFY(utils->openLink(u"testscheme:x"_s));
    QCOMPARE(m_opened.last(), QUrl(u"testscheme:x"_s));
    for (const QString &scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

void tst_UIToolKitUtils::htmlToPlainText()
{
    // Unlike removeFormatting, it is told that the text is HTML.
    QCOMPARE(UIToolKitUtils::instance()->htmlToPlainText(u"Tom &amp;\n Jerry"_s), u"Tom & Jerry"_s);
}

void tst_UIToolKitUtils::delayedSpeech()
{
    auto *utils = UIToolKitUtils::instance();
    QSignalSpy spy(utils, &UIToolKitUtils::announced);
    QQuickItem item;
    auto gone = std::make_unique<QQuickItem>();
    utils->sayAccessible(gone.get(), u"from the grave"_s, 1);
    utils->sayAccessible(&item, u"late"_s, 50);
    utils->sayAccessible(nullptr, u"for nobody"_s, 1);
    utils->sayAccessible(&item, u" at once "_s);
    utils->sayAccessible(&item, u" \n"_s);
    gone.reset();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), u"at once"_s);
    QCOMPARE(spy.first().at(1).value<QObject *>(), &item);
    QTRY_COMPARE(spy.count(), 3);
    QCOMPARE(spy.at(1).first().toString(), u"for nobody"_s);
    QCOMPARE(spy.at(2).first().toString(), u"late"_s);
}

QTEST_MAIN(tst_UIToolKitUtils)
#include "tst_uitoolkitutils.moc"
