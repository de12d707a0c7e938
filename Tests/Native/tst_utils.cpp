#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

#include <algorithm>
#include <limits>

#include "EmojiText.h"
#include "KKeyEvent.h"
#include "PlainText.h"
#include "Utils.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int imageHeight = 20;

qsizetype imageCount(const QString &html)
{
    return html.count("<img src=\"image://emoji/"_L1);
}

//! How long \a work takes, in nanoseconds.
template<typename Work>
qint64 timeOf(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return std::max<qint64>(timer.nsecsElapsed(), 1);
}

} // namespace

class tst_Utils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void emojis_data();
    void emojis();
    void htmlAroundEmojis_data();
    void htmlAroundEmojis();
    void imagesFromTheTextEngine();
    void foreignImagesStay();
    void imageHeights();
    void plainText_data();
    void plainText();
    void plainTextOfTheTextEngine_data();
    void plainTextOfTheTextEngine();
    void hostileText_data();
    void hostileText();
    void copyRichText();
    void paste();
    void keys();
};

void tst_Utils::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void tst_Utils::emojis_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("images");

    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("plain") << u"😀"_s << 1;
    QTest::newRow("adjacent") << u"😀😁 a😂"_s << 3;
    QTest::newRow("skin tone") << u"👍🏽"_s << 1;
    QTest::newRow("skin tone on its own") << u"🏽"_s << 1;
    QTest::newRow("skin tone after what takes none") << u"😀🏽"_s << 2;
    QTest::newRow("family") << u"👨‍👩‍👧‍👦"_s << 1;
    QTest::newRow("kiss with two skin tones") << u"👩🏻‍❤️‍💋‍👨🏿"_s << 1;
    QTest::newRow("minimally qualified") << u"👩‍❤‍👨"_s << 1;
    QTest::newRow("joiner at the end") << u"😀\u200d"_s << 1;
    QTest::newRow("joiner before a letter") << u"😀\u200da"_s << 1;
    QTest::newRow("flags") << u"🇩🇪🇫🇷"_s << 2;
    QTest::newRow("half a flag") << u"🇩🇪🇫 x"_s << 1;
    QTest::newRow("flag of a region") << u"🏴\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F"_s << 1;
    QTest::newRow("unended tags") << u"🏴\U000E0067\U000E0062"_s << 1;
    QTest::newRow("keycap") << u"1️⃣#⃣"_s << 2;
    QTest::newRow("digits") << u"12 #3 *"_s << 0;
    QTest::newRow("digit with a selector only") << u"1\uFE0F"_s << 0;
    QTest::newRow("letter-like") << u"© ™ ❤ ☝"_s << 0;
    QTest::newRow("letter-like with selector") << u"©️❤️"_s << 2;
    QTest::newRow("letter-like with skin tone") << u"☝🏽"_s << 1;
    QTest::newRow("text selector") << u"😀\uFE0E"_s << 0;
    QTest::newRow("half a surrogate pair") << QString(u"a"_s + QChar(0xD83D) + u"b"_s + QChar(0xDE00)) << 0;
    QTest::newRow("endless joining") << u"😀\u200d"_s.repeated(100) << 7;
}

void tst_Utils::emojis()
{
    QFETCH(QString, text);
    QFETCH(int, images);

    const Utils *utils = Utils::instance();
    const QString html = utils->replaceEWJEmojisByImages(text, imageHeight);
    QCOMPARE(imageCount(html), images);
    QCOMPARE(utils->replaceImagesByEWJEmojis(html), text);
    QCOMPARE(utils->replaceEWJEmojisByImages(html, imageHeight), html);
}

void tst_Utils::htmlAroundEmojis_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<int>("images");

    QTest::newRow("between tags") << u"<p>a <b>😀</b>&amp;😀</p>"_s << 2;
    QTest::newRow("in an attribute") << u"<a title='😀 > x' href=\"😀\">y</a>"_s << 0;
    QTest::newRow("in a comment, a style and a script")
        << u"<!-- 😀 > --><style>a::before{content:'😀'}</style><script>'😀'</SCRIPT>😀"_s << 1;
    QTest::newRow("less-than signs that begin no tag") << u"1 < 2 😀 <3 😀 <"_s << 2;
    QTest::newRow("tag that never ends") << u"😀 <b 😀 and so on"_s << 1;
    QTest::newRow("value that never ends") << u"😀 <a href=\"😀 > <b>😀</b>"_s << 1;
    QTest::newRow("comment that never ends") << u"😀 <!-- 😀 <b>"_s << 1;
    QTest::newRow("references stay") << u"&#128512; &x; & 😀"_s << 1;
}

void tst_Utils::htmlAroundEmojis()
{
    QFETCH(QString, html);
    QFETCH(int, images);

    const Utils *utils = Utils::instance();
    const QString result = utils->replaceEWJEmojisByImages(html, imageHeight);
    QCOMPARE(imageCount(result), images);
    QCOMPARE(utils->replaceImagesByEWJEmojis(result), html);
}

void tst_Utils::imagesFromTheTextEngine()
{
    // The engine writes the attributes anew, in its own order.
    const QString text = u"a 👩🏽‍🚀 b 🇩🇪"_s;
    QTextDocument document;
    document.setHtml(Utils::instance()->replaceEWJEmojisByImages(text, imageHeight));
    const QString html = document.toHtml();
    QCOMPARE(imageCount(html), 2);
    QCOMPARE(Utils::instance()->removeFormatting(html), text);
    QVERIFY(Utils::instance()->replaceImagesByEWJEmojis(html).contains(u"a 👩🏽‍🚀 b 🇩🇪"_s));
}

void tst_Utils::foreignImagesStay()
{
    for (const QString &html : {
             u"<img src=\"https://example.org/1f600\">"_s,
             u"<img alt=\"image://emoji/1f600\">"_s,
             u"<img src=\"image://emoji/\">"_s,
             u"<img src=\"image://emoji/61\">"_s,
             u"<img src=\"image://emoji/1f600-61\">"_s,
             u"<img src=\"image://emoji/d83d-de00\">"_s,
             u"<img src=\"image://emoji/ffffffff\">"_s,
             u"<b src=\"image://emoji/1f600\">"_s,
         })
        QCOMPARE(Utils::instance()->replaceImagesByEWJEmojis(html), html);
    QCOMPARE(Utils::instance()->replaceImagesByEWJEmojis(u"<IMG width=1 SRC = 'image://emoji/1f600'/>"_s), u"😀"_s);
}

void tst_Utils::imageHeights()
{
    const auto height = [](qreal requested) {
        static const QRegularExpression expression(u"height=\"(\\d+)\""_s);
        const QString html = Utils::instance()->replaceEWJEmojisByImages(u"😀"_s, requested);
        return expression.match(html).captured(1).toInt();
    };
    QCOMPARE(height(19.6), 20);
    QCOMPARE(height(0.2), 1);
    QCOMPARE(height(0), 16);
    QCOMPARE(height(-5), 16);
    QCOMPARE(height(1e9), 512);
    QCOMPARE(height(std::numeric_limits<qreal>::quiet_NaN()), 16);
}

void tst_Utils::plainText_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("expected");

    QTest::newRow("inline") << u"a<b>b</b> <i>c</i>"_s << u"ab c"_s;
    QTest::newRow("blanks") << u"<p>  a \n\t b  </p>"_s << u"a b"_s;
    QTest::newRow("blocks") << u"<h1>a</h1><p>b</p><div>c<div>d</div></div>e"_s << u"a\nb\nc\nd\ne"_s;
    QTest::newRow("breaks") << u"a<br>b<br/><br />c<br></p>"_s << u"a\nb\n\nc"_s;
    QTest::newRow("list") << u"<ul><li>a</li><li>b</ul>c"_s << u"a\nb\nc"_s;
    QTest::newRow("table") << u"<table><tr><td>a</td><td>b</td></tr><tr><th>c<th>d</table>"_s << u"a b\nc d"_s;
    QTest::newRow("preformatted") << u"<pre>a  b\n c</pre>d  e"_s << u"a  b\n c\nd e"_s;
    QTest::newRow("references") << u"<b>&lt;&AMP;&amp;&nbsp;&#65;&#x42;&#0;&#xD800;&hellip;&bogus;&</b>"_s
                                << u"<&AMP;& AB\uFFFD\uFFFD…&bogus;&"_s;
    QTest::newRow("references are decoded once") << u"<b>&amp;lt;</b>"_s << u"&lt;"_s;
    QTest::newRow("not shown") << u"<head><title>t</title><style>s</style></head><!-- c --><script>x</script>a"_s
                               << u"a"_s;
    QTest::newRow("pictures") << u"<b>a<img alt='b'/><img src='image://emoji/1f600'><img src='x'></b>"_s << u"ab😀"_s;
    QTest::newRow("quoted tag end") << u"<a href='>'>x</a>"_s << u"x"_s;
    QTest::newRow("unended tag is text") << u"<b>a</b> <c"_s << u"a <c"_s;
    QTest::newRow("plain text is left") << u"1 < 2\n  &amp; <3"_s << u"1 < 2\n  &amp; <3"_s;
}

void tst_Utils::plainText()
{
    QFETCH(QString, html);
    QFETCH(QString, expected);
    QCOMPARE(Utils::instance()->removeFormatting(html), expected);
}

void tst_Utils::plainTextOfTheTextEngine_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one line") << u"a"_s;
    QTest::newRow("blanks and markup") << u"  a   b <&> \" c "_s;
    QTest::newRow("empty lines") << u"a\n\n\nb\n"_s;
    QTest::newRow("first line empty") << u"\na"_s;
}

void tst_Utils::plainTextOfTheTextEngine()
{
    QFETCH(QString, text);
    QTextDocument document;
    document.setPlainText(text);
    QCOMPARE(Utils::instance()->removeFormatting(document.toHtml()), text);
    document.setHtml(PlainText::toHtml(text));
    QCOMPARE(document.toPlainText(), text);
}

void tst_Utils::hostileText_data()
{
    QTest::addColumn<QString>("pattern");
    for (const char16_t *pattern : {u"<",
                                    u"<a",
                                    u"<a href=\"",
                                    u"<a b='",
                                    u"<!--",
                                    u"<!",
                                    u"</",
                                    u"<style>",
                                    u"<style",
                                    u"<table><tr><td>",
                                    u"<div>",
                                    u"&",
                                    u"&#",
                                    u"&bogus;",
                                    u"&amp;",
                                    u"<br>",
                                    u"<b>",
                                    u"😀",
                                    u"😀\u200d",
                                    u"🏴\U000E0067",
                                    u"🇩",
                                    u"1\uFE0F",
                                    u"<img src='image://emoji/",
                                    u"<img src='image://emoji/1f600'>",
                                    u"<a title=x ",
                                    u"<pre>",
                                    u" \n"}) {
        const QString text = QString::fromUtf16(pattern);
        QTest::newRow(qPrintable(u"many "_s + text.trimmed())) << text;
    }
}

void tst_Utils::hostileText()
{
    QFETCH(QString, pattern);

    constexpr qsizetype characters = 1'000'000;
    constexpr int growth = 16;
    // Quadratic work would give 256; the rest is for the noise of a busy machine.
    constexpr double worstRatio = 3.0 * growth;
    const QString large = pattern.repeated(characters / pattern.size());
    const QString small = large.first(large.size() / growth);
    const Utils *utils = Utils::instance();
    const auto allFunctions = [&](const QString &text) {
        utils->removeFormatting(text);
        PlainText::hasLink(text);
        PlainText::toHtml(text);
        utils->replaceImagesByEWJEmojis(utils->replaceEWJEmojisByImages(text, imageHeight));
    };
    double ratio = 0;
    for (int attempt = 0; attempt < 3; ++attempt) {
        ratio = double(timeOf([&] { allFunctions(large); })) / double(timeOf([&] { allFunctions(small); }));
        if (ratio < worstRatio)
            break;
    }
    QVERIFY2(ratio < worstRatio, qPrintable(QString::number(ratio)));
    QCOMPARE(utils->replaceImagesByEWJEmojis(utils->replaceEWJEmojisByImages(small, imageHeight)),
             utils->replaceImagesByEWJEmojis(small));
}

void tst_Utils::copyRichText()
{
    Utils::instance()->copyRichText(u"<b>a</b> <img src=\"image://emoji/1f600\" width=\"9\"/>"_s);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->html(), u"<b>a</b> 😀"_s);
    QCOMPARE(data->text(), u"a 😀"_s);
}

void tst_Utils::paste()
{
    const Utils *utils = Utils::instance();
    QGuiApplication::clipboard()->setText(u"<b>\r\na  b\n\n😀"_s);
    QCOMPARE(utils->pasteFromClipboard(), u"<b>\r\na  b\n\n😀"_s);
    QCOMPARE(utils->pasteFromClipboard(true), u"<b> a  b  😀"_s);

    const QString rich = utils->pasteFromClipboardWithEmojis(imageHeight);
    QVERIFY(rich.startsWith(u"&lt;b&gt;<br/>a &nbsp;b<br/><br/><img src=\"image://emoji/1f600\""_s));
    QCOMPARE(utils->removeFormatting(rich), u"<b>\na  b\n\n😀"_s);
    QVERIFY(!utils->pasteFromClipboardWithEmojis(imageHeight, true).contains("<br"_L1));

    QGuiApplication::clipboard()->clear();
    QCOMPARE(utils->pasteFromClipboard(), QString());
    QCOMPARE(utils->pasteFromClipboard(false, 99), QString());
}

void tst_Utils::keys()
{
    const Utils *utils = Utils::instance();
    KKeyEvent event;
    QSignalSpy spy(&event, &KKeyEvent::keyEventChanged);
    QKeyEvent source(QEvent::KeyPress, Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier, u"x"_s, true);
    event.setKeyEvent(&source);
    event.setKeyEvent(nullptr);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(utils->getQKey(&event), int(Qt::Key_Down));
    QCOMPARE(event.modifiers(), int(Qt::AltModifier | Qt::ShiftModifier));
    QCOMPARE(event.text(), u"x"_s);
    QVERIFY(event.isAutoRepeat());
    QCOMPARE(utils->getQKey(nullptr), int(Qt::Key_unknown));
    QCOMPARE(utils->getQKey(this), int(Qt::Key_unknown));

    QCOMPARE(utils->getKeySequence(KKeySequence::ContextMenu), u"Shift+F10"_s);
    QCOMPARE(utils->getKeySequence(KKeySequence::Copy), u"Ctrl+C"_s);
    QCOMPARE(utils->getKeySequence(KKeySequence::Unknown), QString());
    QCOMPARE(utils->getKeySequence(KKeySequence::Type(999)), QString());
}

QTEST_MAIN(tst_Utils)
#include "tst_utils.moc"
