#include "EmojiText.h"
#include "KKeyEvent.h"
#include "NativeTest.h"
#include "PlainText.h"
#include "Utils.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int imageHeight = 20;

qsizetype imageCount(const QString &html)
{
    return html.count("<img src=\"image://emoji/"_L1);
}

} // namespace

class tst_Utils : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void emojis_data()
    {
        const Table<QString, int> row{"text", "images"};
        row("nothing", "", 0);
        row("plain", "😀", 1);
        row("adjacent", "😀😁 a😂", 3);
        row("skin tone", "👍🏽", 1);
        row("skin tone on its own", "🏽", 1);
        row("skin tone after what takes none", "😀🏽", 2);
        row("family", "👨‍👩‍👧‍👦", 1);
        row("kiss with two skin tones", "👩🏻‍❤️‍💋‍👨🏿", 1);
        row("minimally qualified", "👩‍❤‍👨", 1);
        row("joiner at the end", "😀\u200d", 1);
        row("joiner before a letter", "😀\u200da", 1);
        row("flags", "🇩🇪🇫🇷", 2);
        row("half a flag", "🇩🇪🇫 x", 1);
        row("flag of a region", "🏴\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F", 1);
        row("unended tags", "🏴\U000E0067\U000E0062", 1);
        row("keycap", "1️⃣#⃣", 2);
        row("digits", "12 #3 *", 0);
        row("digit with a selector only", "1\uFE0F", 0);
        row("letter-like", "© ™ ❤ ☝", 0);
        row("letter-like with selector", "©️❤️", 2);
        row("letter-like with skin tone", "☝🏽", 1);
        row("text selector", "😀\uFE0E", 0);
        row("half a surrogate pair", QString(u"a"_s + QChar(0xD83D) + u"b"_s + QChar(0xDE00)), 0);
        row("endless joining", u"😀\u200d"_s.repeated(100), 7);

        row("between tags", "<p>a <b>😀</b>&amp;😀</p>", 2);
        row("in an attribute", "<a title='😀 > x' href=\"😀\">y</a>", 0);
        row("in a comment, a style and a script",
            "<!-- 😀 > --><style>a::before{content:'😀'}</style><script>'😀'</SCRIPT>😀", 1);
        row("less-than signs that begin no tag", "1 < 2 😀 <3 😀 <", 2);
        row("tag that never ends", "😀 <b 😀 and so on", 1);
        row("value that never ends", "😀 <a href=\"😀 > <b>😀</b>", 1);
        row("comment that never ends", "😀 <!-- 😀 <b>", 1);
        row("references stay", "&#128512; &x; & 😀", 1);
        row("images of others",
            "<img src='https://example.org/1f600'><img alt='image://emoji/1f600'><img src='image://emoji/'>"
            "<img src='image://emoji/61'><img src='image://emoji/1f600-61'><img src='image://emoji/d83d-de00'>"
            "<img src='image://emoji/ffffffff'><b src='image://emoji/1f600'>",
            0);
    }

    void emojis()
    {
        QFETCH(QString, text);
        const QString html = m_utils->replaceEWJEmojisByImages(text, imageHeight);
        QTEST(int(imageCount(html)), "images");
        QCOMPARE(m_utils->replaceImagesByEWJEmojis(html), text);
        QCOMPARE(m_utils->replaceEWJEmojisByImages(html, imageHeight), html);
    }

    void imagesFromTheTextEngine()
    {
        // The engine writes the attributes anew, in its own order.
        const QString text = u"a 👩🏽‍🚀 b 🇩🇪"_s;
        QTextDocument document;
        document.setHtml(m_utils->replaceEWJEmojisByImages(text, imageHeight));
        const QString html = document.toHtml();
        QCOMPARE(imageCount(html), 2);
        QCOMPARE(m_utils->removeFormatting(html), text);
        QVERIFY(m_utils->replaceImagesByEWJEmojis(html).contains(text));
        QCOMPARE(m_utils->replaceImagesByEWJEmojis(u"<IMG width=1 SRC = 'image://emoji/1f600'/>"_s), u"😀"_s);
    }

    void imageHeights()
    {
        static const QRegularExpression expression(u"height=\"(\\d+)\""_s);
        for (const auto &[requested, expected] : std::initializer_list<std::pair<qreal, int>>{
                 {19.6, 20}, {0.2, 1}, {0, 16}, {-5, 16}, {1e9, 512}, {qQNaN(), 16}}) {
            const QString html = m_utils->replaceEWJEmojisByImages(u"😀"_s, requested);
            QCOMPARE(expression.match(html).captured(1).toInt(), expected);
        }
    }

    void plainText_data()
    {
        const Table<QString, QString> row{"html", "expected"};
        row("inline", "a<b>b</b> <i>c</i>", "ab c");
        row("blanks", "<p>  a \n\t b  </p>", "a b");
        row("blocks", "<h1>a</h1><p>b</p><div>c<div>d</div></div>e", "a\nb\nc\nd\ne");
        row("breaks", "a<br>b<br/><br />c<br></p>", "a\nb\n\nc");
        row("list", "<ul><li>a</li><li>b</ul>c", "a\nb\nc");
        row("table", "<table><tr><td>a</td><td>b</td></tr><tr><th>c<th>d</table>", "a b\nc d");
        row("preformatted", "<pre>a  b\n c</pre>d  e", "a  b\n c\nd e");
        row("references", "<b>&lt;&AMP;&amp;&nbsp;&#65;&#x42;&#0;&#xD800;&hellip;&bogus;&</b>",
            "<&AMP;& AB\uFFFD\uFFFD…&bogus;&");
        row("references are decoded once", "<b>&amp;lt;</b>", "&lt;");
        row("not shown", "<head><title>t</title><style>s</style></head><!-- c --><script>x</script>a", "a");
        row("pictures", "<b>a<img alt='b'/><img src='image://emoji/1f600'><img src='x'></b>", "ab😀");
        row("quoted tag end", "<a href='>'>x</a>", "x");
        row("unended tag is text", "<b>a</b> <c", "a <c");
        row("plain text is left", "1 < 2\n  &amp; <3", "1 < 2\n  &amp; <3");
    }

    void plainText()
    {
        QFETCH(QString, html);
        QTEST(m_utils->removeFormatting(html), "expected");
    }

    void plainTextOfTheTextEngine()
    {
        for (const QString &text : {u"a"_s, u"  a   b <&> \" c "_s, u"a\n\n\nb\n"_s, u"\na"_s}) {
            QTextDocument document;
            document.setPlainText(text);
            QCOMPARE(m_utils->removeFormatting(document.toHtml()), text);
            document.setHtml(PlainText::toHtml(text));
            QCOMPARE(document.toPlainText(), text);
        }
    }

    void hostileText_data()
    {
        const Table<QString> row{"pattern"};
        const QString patterns =
            u"<|<a|<a href=\"|<a b='|<a title=x |<!--|<!|</|<style>|<style|<table><tr><td>|<div>|<br>|<b>|<pre>|"
            "&|&#|&bogus;|&amp;|😀|😀\u200d|🏴\U000E0067|🇩|1\uFE0F|<img src='image://emoji/|"
            "<img src='image://emoji/1f600'>| \n"_s;
        for (const QString &pattern : patterns.split(u'|'))
            row(u"many "_s + pattern.trimmed(), pattern);
    }

    void hostileText()
    {
        QFETCH(QString, pattern);
        constexpr qsizetype characters = 1'000'000;
        constexpr int growth = 16;
        // Quadratic work would give 256; the rest is for the noise of a busy machine.
        constexpr double worstRatio = 3.0 * growth;
        const QString large = pattern.repeated(characters / pattern.size());
        const QString small = large.first(large.size() / growth);
        const auto timeOfAll = [this](const QString &text) {
            QElapsedTimer timer;
            timer.start();
            m_utils->removeFormatting(text);
            PlainText::hasLink(text);
            PlainText::toHtml(text);
            m_utils->replaceImagesByEWJEmojis(m_utils->replaceEWJEmojisByImages(text, imageHeight));
            return double(std::max<qint64>(timer.nsecsElapsed(), 1));
        };
        double ratio = 0;
        for (int attempt = 0; attempt < 3; ++attempt) {
            ratio = timeOfAll(large) / timeOfAll(small);
            if (ratio < worstRatio)
                break;
        }
        QVERIFY2(ratio < worstRatio, qPrintable(QString::number(ratio)));
        QCOMPARE(m_utils->replaceImagesByEWJEmojis(m_utils->replaceEWJEmojisByImages(small, imageHeight)),
                 m_utils->replaceImagesByEWJEmojis(small));
    }

    void copyRichText()
    {
        m_utils->copyRichText(u"<b>a</b> <img src=\"image://emoji/1f600\" width=\"9\"/>"_s);
        const QMimeData *data = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(data->html(), u"<b>a</b> 😀"_s);
        QCOMPARE(data->text(), u"a 😀"_s);
    }

    void paste()
    {
        QGuiApplication::clipboard()->setText(u"<b>\r\na  b\n\n😀"_s);
        QCOMPARE(m_utils->pasteFromClipboard(), u"<b>\r\na  b\n\n😀"_s);
        QCOMPARE(m_utils->pasteFromClipboard(true), u"<b> a  b  😀"_s);

        const QString rich = m_utils->pasteFromClipboardWithEmojis(imageHeight);
        QVERIFY(rich.startsWith(u"&lt;b&gt;<br/>a &nbsp;b<br/><br/><img src=\"image://emoji/1f600\""_s));
        QCOMPARE(m_utils->removeFormatting(rich), u"<b>\na  b\n\n😀"_s);
        QVERIFY(!m_utils->pasteFromClipboardWithEmojis(imageHeight, true).contains("<br"_L1));

        QGuiApplication::clipboard()->clear();
        QCOMPARE(m_utils->pasteFromClipboard(), QString());
        QCOMPARE(m_utils->pasteFromClipboard(false, 99), QString());
    }

    void keys()
    {
        KKeyEvent event;
        QSignalSpy spy(&event, &KKeyEvent::keyEventChanged);
        QKeyEvent source(QEvent::KeyPress, Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier, u"x"_s, true);
        event.setKeyEvent(&source);
        event.setKeyEvent(nullptr);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(m_utils->getQKey(&event), int(Qt::Key_Down));
        QCOMPARE(event.modifiers(), int(Qt::AltModifier | Qt::ShiftModifier));
        QCOMPARE(event.text(), u"x"_s);
        QVERIFY(event.isAutoRepeat());
        QCOMPARE(m_utils->getQKey(nullptr), int(Qt::Key_unknown));
        QCOMPARE(m_utils->getQKey(this), int(Qt::Key_unknown));

        QCOMPARE(m_utils->getKeySequence(KKeySequence::ContextMenu), u"Shift+F10"_s);
        QCOMPARE(m_utils->getKeySequence(KKeySequence::Copy), u"Ctrl+C"_s);
        QCOMPARE(m_utils->getKeySequence(KKeySequence::Unknown), QString());
        QCOMPARE(m_utils->getKeySequence(KKeySequence::Type(999)), QString());
    }

private:
    Utils *const m_utils = Utils::instance();
};

QTEST_MAIN(tst_Utils)
#include "tst_utils.moc"
