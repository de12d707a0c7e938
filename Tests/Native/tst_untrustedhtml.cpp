#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>

#include "PlainText.h"
#include "TextRunGuard.h"
#include "UntrustedHtml.h"
#include "UntrustedHtmlOracle.h"

using namespace Qt::StringLiterals;

//! What reaches the text engine of HTML from strangers.
class tst_UntrustedHtml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }
    void reduces_data();
    void reduces();
    void bombs_data();
    void bombs();
    void longRuns();
    void anyMarkup();
};

void tst_UntrustedHtml::reduces_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("expected"); // within the body
    const auto row = [](const char *name, const QString &html, const QString &expected) {
        QTest::newRow(name) << html << expected;
    };
    const QString empty = u"<p style=\"-qt-paragraph-type:empty;\"><br /></p>"_s;
    row("nothing", {}, {});
    row("text", u"a  b\n&lt;c&gt; &amp;"_s, u"<p>a b &lt;c&gt; &</p>"_s);
    row("formats", u"<strong>a</strong><em>b</em><ins>c</ins><u><i><b>d"_s,
        u"<p><b>a</b><i>b</i><u>c</u><b><i><u>d</u></i></b></p>"_s);
    row("wrong order", u"<b>1<i>2</b>3</i>4"_s, u"<p><b>1</b><b><i>2</i></b><i>3</i>4</p>"_s);
    row("format over blocks", u"<b>1<p>2</b>3"_s, u"<p><b>1</b></p><p><b>2</b>3</p>"_s);
    row("styles", u"<span style='font-weight:600;FONT-STYLE:italic'>a<b style='font-weight:normal'>b</b></span>"_s,
        u"<p><b><i>a</i></b><i>b</i></p>"_s);
    row("style sheet",
        u"<style><!-- /* } */ @import 'x'; @media print{.b{display:none}} .b, p.i{font-weight:bold} p.i "
        "{font-style:italic} a b{display:none} --></style><p class='x i'>1<span class=B>2"_s,
        u"<p><b><i>12</i></b></p>"_s);
    row("hidden", u"<title>t</title>a<span style='display:none'>b<p>c</span>d<script>e</script><!-- f -->"_s,
        u"<p>a</p><p>d</p>"_s);
    row("headings", u"<h1>a</h1><h3 class=x>b<br></h3><h4>c</h4>d"_s, u"<h1>a</h1><h3>b</h3><p><b>c</b></p><p>d</p>"_s);
    row("lists", u"<ul><li>a<li><p>b</p><p>c</p><ol><li><h2>d</h2></ol><li></ul>e"_s,
        u"<ul><li>a</li></ul><ul><li>b</li></ul><p>c</p><ul><li><h2>d</h2></li></ul><ul><li "
        u"style=\"-qt-paragraph-type:empty;\"><br />"
        "</li></ul><p>e</p>"_s);
    row("table", u"<table><tr><th>a<td>b<tr><td>c</table>d"_s, u"<p><b>a</b></p><p>b</p><p>c</p><p>d</p>"_s);
    row("breaks", u"a<br>b<br><p>c<br><br></p><div><br></div>d"_s,
        u"<p>a<br/>b</p><p>c<br/></p>"_s + empty + u"<p>d</p>"_s);
    row("own dialect", u"<p></p><p><b>a</b><br/></p><ul><li><p></p></li></ul>"_s,
        empty + u"<p><b>a</b><br/></p><ul><li style=\"-qt-paragraph-type:empty;\"><br /></li></ul>"_s);
    row("kept blanks", u"<pre>\n a  b\r\n\nc</pre><span style='white-space:pre-wrap'> d </span>"_s,
        u"<p> a  b</p>"_s + empty + u"<p>c</p><p> d </p>"_s);
    row("separators", u"a\u2028b\u2029c\u00a0d"_s, u"<p>a<br/>b</p><p>c\u00a0d</p>"_s);
    row("structure", u"a\uFFFC\uFDD0b&#xFDD1;&#0;c"_s, u"<p>abc</p>"_s.replace(u"bc"_s, u"b\uFFFDc"_s));
    row("pictures", u"a<img src='http://x/y.png' alt=z><svg><image href='http://x'></svg>b"_s, u"<p>ab</p>"_s);
    row("windows characters", u"&#146;&alpha;&nosuch;"_s, u"<p>\u2019\u03b1&amp;nosuch;</p>"_s);

    row("link", u"<a href=https://x/?a=1&amp;b target=y onclick=z>a<p>b</a>c"_s,
        u"<p><a href=\"https://x/?a=1&amp;b\">a</a></p><p><a href=\"https://x/?a=1&amp;b\">b</a>c</p>"_s);
    row("harmless schemes", u"<a href='MAILTO:a@b'>a</a><a href='tel:1'>b</a><a href=' sip:c'>c</a>"_s,
        u"<p><a href=\"MAILTO:a@b\">a</a><a href=\"tel:1\">b</a><a href=\"sip:c\">c</a></p>"_s);
    for (const QString &target :
         {u"javascript:x"_s, u"JaVa&#9;Script:x"_s, u"&#1;javascript:x"_s, u"java\nscript:x"_s, u"data:text/html,x"_s,
          u"vbscript:x"_s, u"file:///x"_s, u"//x/y"_s, u"x.html"_s, u"#x"_s, u"qrc:/x"_s, u":x"_s, u""_s})
        row(qPrintable("target "_L1 + QString(target).replace(u'\n', u' ')), u"<a href='%1'>a</a>"_s.arg(target),
            u"<p>a</p>"_s);
    row("unsafe link", u"<a href='https://x\" onclick=\"y<b>\u2028'>a</a>"_s,
        u"<p><a href=\"https://x%22%20onclick=%22y%3Cb%3E\">a</a></p>"_s);

    row("cut tag", u"<p>a <b>b</b> <a href=\"htt"_s, u"<p>a <b>b</b> &lt;a href=\"htt</p>"_s);
    row("cut reference", u"a &am"_s, u"<p>a &amp;am</p>"_s);
    row("cut comment", u"a<!-- b"_s, u"<p>a&lt;!-- b</p>"_s);
    row("stray ends", u"</b>a</div>b</p></li>c"_s, u"<p>a</p><p>b</p><p>c</p>"_s);
}

void tst_UntrustedHtml::reduces()
{
    QFETCH(QString, html);
    QFETCH(QString, expected);
    const QString reduced = UntrustedHtml::reduced(html, UntrustedHtmlOracle::schemes());
    QCOMPARE(reduced, u"<body style=\"white-space:pre-wrap\">"_s + expected);
    QCOMPARE(UntrustedHtmlOracle::fault(html), QString());
}

void tst_UntrustedHtml::bombs_data()
{
    QTest::addColumn<QString>("html");
    constexpr int many = 300000;
    for (const char *piece : {"&", "<", "</", "<b>", "</b>", "<div>", "<p></p>", "<a href=https://x>a<p>", "<!--", "&#",
                              "<br>", "<li>", "<table><tr><td>", "<style>", "<b><i></b>", "<x y='", "\u0301", "\u00a0"})
        QTest::newRow(piece) << QString::fromUtf8(piece).repeated(many);
    QTest::newRow("link over paragraphs")
        << u"<a href=https://%1>"_s.arg(QString(many, u'x')) + u"<p>y"_s.repeated(many);
    QTest::newRow("unended quote") << u"<a href=\""_s.repeated(many);
    QTest::newRow("deep wrong order") << u"<b>"_s.repeated(many) + u"<i>"_s.repeated(many) + u"</b>"_s.repeated(many);
    QTest::newRow("braces") << u"<style>"_s + u"@x{"_s.repeated(many) + u"</style>"_s + u"<p class=x>"_s.repeated(many);
    QTest::newRow("classes") << u"<style>x{}</style><p class='"_s + u"x "_s.repeated(many) + u"'>y"_s;
}

//! Where time grew with the square of the length these would take minutes.
void tst_UntrustedHtml::bombs()
{
    QFETCH(QString, html);
    QElapsedTimer timer;
    timer.start();
    const qsizetype size = UntrustedHtml::reduced(html, UntrustedHtmlOracle::schemes()).size();
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(size < 20 * html.size(), qPrintable(QString::number(size)));
}

void tst_UntrustedHtml::longRuns()
{
    constexpr int length = 100000;
    const QChar breakPlace(TextRunGuard::breakOpportunity);
    const auto longestRun = [&](const QString &text) {
        qsizetype longest = 0;
        for (const QStringView run : QStringView(text).tokenize(breakPlace))
            longest = qMax(longest, run.size());
        return longest;
    };
    for (const QString &letter : {u"&"_s, u"\U0001F600"_s, u"e\u0301"_s, u"\u0301"_s, u"\u00a0"_s, u"\u3001"_s}) {
        const QString text = letter.repeated(length);
        const QString guarded = UntrustedText::guarded(text);
        QVERIFY(longestRun(guarded) < 1100);
        QCOMPARE(QString(guarded).remove(breakPlace), text);
        for (qsizetype i = guarded.indexOf(breakPlace); i > 0; i = guarded.indexOf(breakPlace, i + 1))
            QVERIFY(!guarded.at(i - 1).isHighSurrogate());
    }
    for (const QString &text :
         {u"a word and "_s.repeated(length), u"\u6f22\u5b57"_s.repeated(length), QString(9999, u'x')})
        QCOMPARE(UntrustedText::guarded(text), text);
    QCOMPARE(UntrustedText::guarded(u"a\uFFFC\uFDD0\uFDD1b"_s), u"ab"_s);
}

//! UITOOLKIT_FUZZ_ROUNDS in the environment is the number of rounds, for a longer run by hand.
void tst_UntrustedHtml::anyMarkup()
{
    const int rounds = qEnvironmentVariableIntValue("UITOOLKIT_FUZZ_ROUNDS");
    for (int seed = 1; seed <= (rounds > 0 ? rounds : 2000); ++seed) {
        const QString html = UntrustedHtmlOracle::random(quint32(seed));
        const QString fault = UntrustedHtmlOracle::fault(html);
        QVERIFY2(fault.isEmpty(), qPrintable(u"seed %1: %2\n%3"_s.arg(seed).arg(fault, html)));
    }
}

QTEST_MAIN(tst_UntrustedHtml)
#include "tst_untrustedhtml.moc"
