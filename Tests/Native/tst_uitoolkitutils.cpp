#include "KFont.h"
#include "NativeTest.h"
#include "UIToolKitUtils.h"

#include <QDesktopServices>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
Window {
    width: 200; height: 200
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

class tst_UIToolKitUtils : public SceneTest
{
    Q_OBJECT

public Q_SLOTS:
    void recordUrl(const QUrl &url) { m_opened.append(url); }

private Q_SLOTS:
    void init() override
    {
        NativeTest::init();
        m_opened.clear();
        QVERIFY(m_utils->isQt6Used());
    }

    void simulatedKeys()
    {
        open(sceneSource);
        auto *child = item("child");
        QVERIFY(m_utils->simulateKeyEvent(child, Qt::Key_A, Qt::ShiftModifier, u"A"_s));
        QVERIFY(m_utils->simulateKeyEvent(child, Qt::Key_B));
        QVERIFY(!m_utils->simulateKeyEvent(child, Qt::Key_C));
        QCOMPARE(m_window->property("keys").toStringList().join(u", "_s),
                 u"child 65 33554432A, parent 65, released 65, child 66 0, released 66, child 67 0, parent 67, "
                 "released 67"_s);
        child->forceActiveFocus();
        m_window->setProperty("keys", QStringList());
        QVERIFY(m_utils->simulateKeyEvent(m_window.get(), Qt::Key_B));
        QCOMPARE(m_window->property("keys").toStringList().constFirst(), u"child 66 0"_s);
        QVERIFY(!m_utils->simulateKeyEvent(nullptr, Qt::Key_B));
    }

    void simulatedTabs()
    {
        open(sceneSource);
        auto *child = item("child");
        auto *next = item("next");
        QVERIFY(m_utils->simulateKeyEvent(child, Qt::Key_Tab));
        QCOMPARE(m_window->activeFocusItem(), next);
        QVERIFY(m_utils->simulateKeyEvent(next, Qt::Key_Backtab));
        QCOMPARE(m_window->activeFocusItem(), child);
        // An item that is no stop itself sends the focus on from its own place.
        QVERIFY(m_utils->simulateKeyEvent(item("passive"), Qt::Key_Tab));
        QCOMPARE(m_window->activeFocusItem(), next);
    }

    void deletionDuringKey()
    {
        const QPointer<QQuickItem> item =
            create<QQuickItem>(m_engine,
                               "import QtQuick; Item { id: dying; signal pressed(); Keys.onPressed: dying.pressed() }")
                .release();
        connect(item, SIGNAL(pressed()), item, SLOT(deleteLater()));
        m_utils->simulateKeyEvent(item, Qt::Key_A);
        QTRY_VERIFY(!item);
    }

    void screenIndex()
    {
        const QRectF geometry = QGuiApplication::screens().constFirst()->geometry();
        QCOMPARE(m_utils->getScreenIndexFromPoint(geometry.topLeft()), 0);
        QCOMPARE(m_utils->getScreenIndexFromPoint(geometry.bottomRight() - QPointF(0.5, 0.5)), 0);
        QCOMPARE(m_utils->getScreenIndexFromPoint(geometry.bottomRight()), -1);
        QCOMPARE(m_utils->getScreenIndexFromPoint(QPointF(-1e7, 0)), -1);
    }

    void windowAncestry()
    {
        QQuickWindow top;
        QQuickWindow transient;
        transient.setTransientParent(&top);
        QQuickWindow grandchild;
        grandchild.setTransientParent(&transient);
        QVERIFY(m_utils->isAncestorOf(&top, &grandchild));
        QVERIFY(!m_utils->isAncestorOf(&grandchild, &top) && !m_utils->isAncestorOf(&top, &top));
        QVERIFY(!m_utils->isAncestorOf(nullptr, &top) && !m_utils->isAncestorOf(&top, nullptr));
    }

    void textBounds()
    {
        const KFont font(KFont::BodyPrimary);
        const QString text = u"a text of some words"_s;
        const QRectF line = m_utils->getTextBoundingRect(text, font);
        QVERIFY(qAbs(line.width() - QFontMetricsF(font).horizontalAdvance(text)) < 1);
        QCOMPARE(m_utils->getTextBoundingRect(text, font, line.width() + 1), line);

        const QRectF wrapped = m_utils->getTextBoundingRect(text, font, line.width() / 2);
        QVERIFY(wrapped.width() <= line.width() / 2);
        QVERIFY(wrapped.height() > line.height());
        const QRectF longWord = m_utils->getTextBoundingRect(u"wwwwwwwwwwwwwwwwwwww"_s, font, 40);
        QVERIFY(longWord.width() <= 40);
        QCOMPARE(m_utils->getTextBoundingRect(u"a\nb"_s, font).height(), 2 * line.height());
        QCOMPARE(m_utils->getTextBoundingRect(QString(), font).width(), 0.0);
    }

    void links()
    {
        for (const QString &html : {u"see <a href=\"https://example.org\">here</a>"_s, u"<A class=x\nHREF = x>y</A>"_s})
            QVERIFY2(m_utils->hasLinkInText(html), qPrintable(html));
        for (const QString &html :
             {u"<a name=x>y</a><a href=''>z</a>"_s, u"https://example.org"_s, u"<!-- <a href='x'> -->"_s,
              u"&lt;a href='x'&gt;"_s, u"<area href='x'><b data-href='x'>"_s})
            QVERIFY2(!m_utils->hasLinkInText(html), qPrintable(html));
    }

    void openLink()
    {
        const QStringList schemes = {u"http"_s, u"https"_s, u"mailto"_s, u"file"_s, u"testscheme"_s};
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "recordUrl");

        for (const QString &link : {u"https://example.org/a?b#c"_s, u"www.example.org"_s, u"mailto:a@example.org"_s})
            QVERIFY(m_utils->openLink(link));
        const QList<QUrl> expected = {QUrl(u"https://example.org/a?b#c"_s), QUrl(u"http://www.example.org"_s),
                                      QUrl(u"mailto:a@example.org"_s)};
        QCOMPARE(m_opened, expected);

        QVERIFY(!m_utils->openLink(QString()) && !m_utils->openLink(u"  "_s));
        for (const QString &link : {u"javascript:alert(1)"_s, u"file:///etc/passwd"_s, u"/etc/passwd"_s,
                                    u"data:text/html,x"_s, u"testscheme:x"_s, u"JavaScript:alert(1)"_s, u"qrc:/x"_s}) {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u"^UIToolKitUtils: links of the scheme \".*\" are not opened$"_s));
            QVERIFY(!m_utils->openLink(link));
        }
        QCOMPARE(m_opened.size(), expected.size());

        m_utils->addLinkScheme(u"TestScheme"_s);
        QVERIFY(m_utils->openLink(u"testscheme:x"_s));
        QCOMPARE(m_opened.last(), QUrl(u"testscheme:x"_s));
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    void htmlToPlainText()
    {
        // Unlike removeFormatting, it is told that the text is HTML.
        QCOMPARE(m_utils->htmlToPlainText(u"Tom &amp;\n Jerry"_s), u"Tom & Jerry"_s);
    }

    void delayedSpeech()
    {
        QSignalSpy spy(m_utils, &UIToolKitUtils::announced);
        QQuickItem item;
        auto gone = std::make_unique<QQuickItem>();
        m_utils->sayAccessible(gone.get(), u"from the grave"_s, 1);
        m_utils->sayAccessible(&item, u"late"_s, 50);
        m_utils->sayAccessible(nullptr, u"for nobody"_s, 1);
        m_utils->sayAccessible(&item, u" at once "_s);
        m_utils->sayAccessible(&item, u" \n"_s);
        gone.reset();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toString(), u"at once"_s);
        QCOMPARE(spy.first().at(1).value<QObject *>(), &item);
        QTRY_COMPARE(spy.count(), 3);
        QCOMPARE(spy.at(1).first().toString(), u"for nobody"_s);
        QCOMPARE(spy.at(2).first().toString(), u"late"_s);
    }

private:
    UIToolKitUtils *const m_utils = UIToolKitUtils::instance();
    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_UIToolKitUtils)
#include "tst_uitoolkitutils.moc"
