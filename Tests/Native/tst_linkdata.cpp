#include "NativeTest.h"
#include "UTLinkData.h"

#include <QDesktopServices>
#include <QSignalSpy>

#include <private/qquicktextedit_p.h>

using namespace Qt::StringLiterals;

static const QString twoLinks = u"ab <a href='u:1'>c<b>d</b></a> e <a href='u:2'>f</a> g"_s;

//! Links of a real text item, walked as the keys do it.
class tst_LinkData : public NativeTest
{
    Q_OBJECT

public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_opened << url; }

private Q_SLOTS:
    void walks_data()
    {
        const Table<QString, QString> row{"html", "links"}; // in the order of Tab
        row("none", "a <a name='x'>b</a> <a href=''>c</a>", "");
        row("two", twoLinks, "u:1 cd 3-5; u:2 f 8-9");
        row("first and last", "<a href='u:1'>a</a> <a href='u:2'>b</a>", "u:1 a 0-1; u:2 b 2-3");
        row("side by side", "<a href='u:1'>a</a><a href='u:2'>b</a>", "u:1 a 0-1; u:2 b 1-2");
        row("two paragraphs", "<p><a href='u:1'>a</a></p><p><a href='u:1'>b</a></p>", "u:1 a 0-1; u:1 b 2-3");
        row("surrogates, marks, breaks", "😀<a href='u:1'>e\u0301😀<br>x</a>", "u:1 e\u0301😀 x 2-8");
        row("table", "<table><tr><td><a href='u:1'>a</a></td></tr></table>", "u:1 a 1-2");
    }

    void walks()
    {
        QFETCH(QString, html);
        QFETCH(QString, links);
        show(html);
        QCOMPARE(m_data->hasLink(), !links.isEmpty());
        // Tab comes in, and goes on until it is let go; so does Backtab.
        for (const bool forward : {true, false}) {
            m_data->handleFocusInOut(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason, true);
            QVERIFY(m_data->linkArea().isEmpty());
            QStringList seen;
            while (m_data->handleLinkFocus(forward)) {
                seen << current();
                QVERIFY(!m_data->linkArea().isEmpty());
            }
            if (!forward)
                std::reverse(seen.begin(), seen.end());
            QCOMPARE(seen.join(u"; "_s), links);
        }
    }

    void focus_data()
    {
        const Table<Qt::FocusReason, bool, QString, bool> row{"reason", "focusLink", "expected", "hasRing"};
        // From the second link as the current one.
        row("tab", Qt::TabFocusReason, true, "u:1 cd 0-0", false);
        row("backtab", Qt::BacktabFocusReason, false, "u:2 f 11-11", false);
        row("mouse", Qt::MouseFocusReason, true, "u:1 cd 0-0", false);
        row("window", Qt::ActiveWindowFocusReason, true, "u:2 f 8-9", true);
        row("window, whole text", Qt::ActiveWindowFocusReason, false, "u:2 f 8-8", false);
    }

    void focus()
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
    void announces()
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

    void caret()
    {
        show(twoLinks);
        const std::pair<int, QString> rows[] = {{-7, u"  0-0"_s},     {2, u"  2-2"_s},     {3, u"u:1 cd 3-5"_s},
                                                {4, u"u:1 cd 3-5"_s}, {5, u"  5-5"_s},     {8, u"u:2 f 8-9"_s},
                                                {9, u"  9-9"_s},      {1000, u"  11-11"_s}};
        for (const auto &[position, expected] : rows) {
            m_data->setCursorPosition(position);
            QCOMPARE(current(), expected);
            QCOMPARE(m_data->linkArea().isEmpty(), m_data->currentLink().isEmpty());
        }
        m_data->setCursorPosition(6);
        QVERIFY(m_data->handleLinkFocus(true)); // the walk goes on from the caret
        QCOMPARE(m_data->currentLink(), u"u:2"_s);
    }

    void textChanges()
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

    void area()
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

    void opens()
    {
        for (const QString &scheme : {u"https"_s, u"http"_s})
            QDesktopServices::setUrlHandler(scheme, this, "takeUrl");
        UTLinkData data;
        QVERIFY(!data.openUrl({}) && !data.openUrl(u" "_s));
        QVERIFY(m_opened.isEmpty());
        QVERIFY(data.openUrl(u"https://example.org/a b"_s) && data.openUrl(u"example.org"_s));
        QCOMPARE(m_opened, QList<QUrl>({QUrl(u"https://example.org/a b"_s), QUrl(u"http://example.org"_s)}));
        for (const QString &scheme : {u"https"_s, u"http"_s})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    void nothingThere()
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

QTEST_MAIN(tst_LinkData)
#include "tst_linkdata.moc"
