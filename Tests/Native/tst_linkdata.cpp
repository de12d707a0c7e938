#include "UTLinkData.h"

#include <QDesktopServices>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

#include <private/qquicktextedit_p.h>

using namespace Qt::StringLiterals;

namespace {

const QString twoLinks = u"ab <a href='u:1'>c<b>d</b></a> e <a href='u:2'>f</a> g"_s;

} // namespace

//! Links of a real text item, walked as the keys do it.
class tst_LinkData : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_opened << url; }

private Q_SLOTS:
    void init();
    void walks_data();
    void walks();
    void focus_data();
    void focus();
    void announces();
    void caret();
    void textChanges();
    void area();
    void opens();
    void nothingThere();

private:
    void show(const QString &html)
    {
        m_edit = std::make_unique<QQuickTextEdit>();
        m_edit->setTextFormat(QQuickTextEdit::RichText);
        m_edit->setParentItem(m_window.contentItem());
        m_edit->setText(html);
        m_data = std::make_unique<UTLinkData>();
        m_data->setTextItem(m_edit.get());
    }
    //! "target text start-end"
    QString current() const
    {
        return u"%1 %2 %3-%4"_s.arg(m_data->currentLink(), m_data->currentLinkText())
            .arg(m_data->currentLinkStartPosition())
            .arg(m_data->currentLinkEndPosition());
    }

    QQuickWindow m_window;
    std::unique_ptr<QQuickTextEdit> m_edit;
    std::unique_ptr<UTLinkData> m_data;
    QList<QUrl> m_opened;
};

void tst_LinkData::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void tst_LinkData::walks_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QStringList>("links"); // in the order of Tab

    QTest::newRow("none") << u"a <a name='x'>b</a> <a href=''>c</a>"_s << QStringList();
    QTest::newRow("two") << twoLinks << QStringList({u"u:1 cd 3-5"_s, u"u:2 f 8-9"_s});
    QTest::newRow("first and last") << u"<a href='u:1'>a</a> <a href='u:2'>b</a>"_s
                                    << QStringList({u"u:1 a 0-1"_s, u"u:2 b 2-3"_s});
    QTest::newRow("side by side") << u"<a href='u:1'>a</a><a href='u:2'>b</a>"_s
                                  << QStringList({u"u:1 a 0-1"_s, u"u:2 b 1-2"_s});
    QTest::newRow("two paragraphs") << u"<p><a href='u:1'>a</a></p><p><a href='u:1'>b</a></p>"_s
                                    << QStringList({u"u:1 a 0-1"_s, u"u:1 b 2-3"_s});
    QTest::newRow("surrogates, marks, breaks")
        << u"😀<a href='u:1'>e\u0301😀<br>x</a>"_s << QStringList({u"u:1 e\u0301😀 x 2-8"_s});
    QTest::newRow("table") << u"<table><tr><td><a href='u:1'>a</a></td></tr></table>"_s
                           << QStringList({u"u:1 a 1-2"_s});
}

void tst_LinkData::walks()
{
    QFETCH(QString, html);
    QFETCH(QStringList, links);
    show(html);
    QCOMPARE(m_data->hasLink(), !links.isEmpty());
    // Tab comes in, and goes on until it is let go; so does Backtab.
    for (const bool forward : {true, false}) {
        m_data->handleFocusInOut(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason, true);
        QVERIFY(m_data->linkArea().isEmpty());
        QStringList seen;
        while (m_data->handleLinkFocus(forward)) {
            seen << current();
            QCOMPARE(m_data->linkArea().isEmpty(), false);
        }
        QStringList expected = links;
        if (!forward)
            std::reverse(expected.begin(), expected.end());
        QCOMPARE(seen, expected);
    }
}

void tst_LinkData::focus_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("focusLink");
    QTest::addColumn<QString>("expected"); // with the second link the current one before
    QTest::addColumn<bool>("hasRing");

    QTest::newRow("tab") << Qt::TabFocusReason << true << u"u:1 cd 0-0"_s << false;
    QTest::newRow("backtab") << Qt::BacktabFocusReason << false << u"u:2 f 11-11"_s << false;
    QTest::newRow("mouse") << Qt::MouseFocusReason << true << u"u:1 cd 0-0"_s << false;
    QTest::newRow("window") << Qt::ActiveWindowFocusReason << true << u"u:2 f 8-9"_s << true;
    QTest::newRow("window, whole text") << Qt::ActiveWindowFocusReason << false << u"u:2 f 8-8"_s << false;
}

void tst_LinkData::focus()
{
    QFETCH(Qt::FocusReason, reason);
    QFETCH(bool, focusLink);
    show(twoLinks);
    m_data->setCursorPosition(8);
    const QSignalSpy announced(m_data.get(), &UTLinkData::customAnnounceChanged);
    const QSignalSpy moved(m_data.get(), &UTLinkData::linkAreaChanged);
    m_data->handleFocusInOut(reason, focusLink);
    QTEST(current(), "expected");
    QTEST(!m_data->linkArea().isEmpty(), "hasRing");
    QVERIFY(announced.count() >= 1 && moved.count() >= 1);
    // A link that went meanwhile is not chosen again.
    m_edit->setText(u"<a href='u:3'>x</a>"_s);
    m_data->updateLinkInfoList();
    QVERIFY(m_data->currentLink().isEmpty());
    m_data->handleFocusInOut(reason, focusLink);
    QCOMPARE(m_data->currentLink(), u"u:3"_s);
}

// Focus speaks of the link that it lands on; of the others, and of the first in a focused text, nobody else does.
void tst_LinkData::announces()
{
    show(u"<a href='u'>a</a> <a href='u'>a</a>"_s);
    const QSignalSpy changed(m_data.get(), &UTLinkData::currentLinkChanged);
    for (const bool focusLink : {true, false}) {
        m_data->handleFocusInOut(Qt::TabFocusReason, focusLink);
        const auto before = changed.count();
        QVERIFY(m_data->handleLinkFocus(true));
        QCOMPARE(m_data->customAnnounce(), !focusLink);
        QCOMPARE(changed.count() - before, focusLink ? 0 : 1);
        QVERIFY(m_data->handleLinkFocus(true)); // same target, same text, yet another link
        QVERIFY(m_data->customAnnounce());
        QCOMPARE(changed.count() - before, focusLink ? 1 : 2);
    }
    m_data->handleFocusInOut(Qt::BacktabFocusReason, false);
    QVERIFY(m_data->handleLinkFocus(false));
    QVERIFY(!m_data->customAnnounce());
}

void tst_LinkData::caret()
{
    show(twoLinks);
    const QStringList expected = {u"  0-0"_s, u"  2-2"_s,     u"u:1 cd 3-5"_s, u"u:1 cd 3-5"_s,
                                  u"  5-5"_s, u"u:2 f 8-9"_s, u"  9-9"_s,      u"  11-11"_s};
    const int positions[] = {-7, 2, 3, 4, 5, 8, 9, 1000};
    for (qsizetype i = 0; i < expected.size(); ++i) {
        m_data->setCursorPosition(positions[i]);
        QCOMPARE(current(), expected[i]);
        QCOMPARE(m_data->linkArea().isEmpty(), m_data->currentLink().isEmpty());
    }
    m_data->setCursorPosition(6);
    QVERIFY(m_data->handleLinkFocus(true)); // the walk goes on from the caret
    QCOMPARE(m_data->currentLink(), u"u:2"_s);
}

void tst_LinkData::textChanges()
{
    show(twoLinks);
    m_data->setCursorPosition(8);
    m_edit->insert(0, u"more "_s);
    m_data->updateLinkInfoList();
    QCOMPARE(current(), u"u:2 f 13-14"_s);
    QVERIFY(!m_data->linkArea().isEmpty());
    const QSignalSpy hasLink(m_data.get(), &UTLinkData::hasLinkChanged);
    m_edit->setText(u"x"_s);
    // Even while the object still believes in the links.
    m_data->onSizeChanged();
    m_data->handleLinkFocus(false);
    m_data->updateLinkInfoList();
    QCOMPARE(hasLink.count(), 1);
    QCOMPARE(m_data->currentLink(), QString());
    QVERIFY(m_data->linkArea().isEmpty() && m_data->currentLinkEndPosition() <= 1);
}

void tst_LinkData::area()
{
    show(u"<p>a <a href='u:1'>one two</a></p><p dir='rtl'><a href='u:2'>\u05d0\u05d1</a></p>"_s);
    m_edit->setWrapMode(QQuickTextEdit::WordWrap);
    m_edit->setLeftPadding(7);
    m_edit->setTopPadding(5);
    m_edit->setWidth(300);
    // Around each character of the link, where the item itself says it is.
    const auto check = [this](int lines) {
        m_data->onSizeChanged();
        QCOMPARE(m_data->linkArea().size(), lines);
        for (int i = m_data->currentLinkStartPosition(); i < m_data->currentLinkEndPosition() - 1; ++i) {
            const QPointF point = m_edit->positionToRectangle(i).center();
            const QVariantList area = m_data->linkArea();
            QVERIFY(std::any_of(area.begin(), area.end(), [point](const QVariant &value) {
                const QVariantMap map = value.toMap();
                return QRectF(map[u"x"_s].toReal(), map[u"y"_s].toReal(), map[u"width"_s].toReal(),
                              map[u"height"_s].toReal())
                    .adjusted(-1, 0, 1, 0)
                    .contains(point);
            }));
        }
    };
    m_data->setCursorPosition(2);
    check(1);
    m_edit->setWidth(m_edit->positionToRectangle(5).right() + 7);
    check(2);
    m_data->setCursorPosition(11);
    QCOMPARE(m_data->currentLink(), u"u:2"_s);
    check(1);
}

void tst_LinkData::opens()
{
    QDesktopServices::setUrlHandler(u"https"_s, this, "takeUrl");
    QDesktopServices::setUrlHandler(u"http"_s, this, "takeUrl");
    UTLinkData data;
    QVERIFY(!data.openUrl({}) && !data.openUrl(u" "_s));
    QVERIFY(m_opened.isEmpty());
    QVERIFY(data.openUrl(u"https://example.org/a b"_s) && data.openUrl(u"example.org"_s));
    QCOMPARE(m_opened, QList<QUrl>({QUrl(u"https://example.org/a b"_s), QUrl(u"http://example.org"_s)}));
    QDesktopServices::unsetUrlHandler(u"https"_s);
    QDesktopServices::unsetUrlHandler(u"http"_s);
}

void tst_LinkData::nothingThere()
{
    QQuickItem noText;
    show(twoLinks);
    m_data->setCursorPosition(3);
    for (int i = 0; i < 3; ++i) {
        if (i == 0)
            m_edit.reset();
        else
            m_data->setTextItem(i == 1 ? &noText : nullptr);
        QVERIFY(!m_data->hasLink() && m_data->currentLink().isEmpty() && m_data->linkArea().isEmpty());
        m_data->handleFocusInOut(Qt::BacktabFocusReason, true);
        m_data->handleFocusInOut(Qt::OtherFocusReason, true);
        QVERIFY(!m_data->handleLinkFocus(true) && !m_data->handleLinkFocus(false));
        m_data->setCursorPosition(3);
        m_data->onSizeChanged();
        QCOMPARE(current(), u"  0-0"_s);
    }
}

QTEST_MAIN(tst_LinkData)
#include "tst_linkdata.moc"
