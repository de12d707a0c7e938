#include "NativeTest.h"
#include "PlainText.h"
#include "TextRunGuard.h"
#include "UntrustedHtml.h"
#include "UntrustedHtmlOracle.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

//! What reaches the text engine of HTML from strangers.
class tst_UntrustedHtml : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void reduces_data()
    {
        const Table<QString, QString> row{"html", "expected"};
        const QString empty = u"<p style=\"-qt-paragraph-type:empty;\"><br /></p>"_s;
        row("nothing", "", "");
        row("text", "a  b\n&lt;c&gt; &amp;", "<p>a b &lt;c&gt; &</p>");
        row("formats", "<strong>a</strong><em>b</em><ins>c</ins><u><i><b>d",
            "<p><b>a</b><i>b</i><u>c</u><b><i><u>d</u></i></b></p>");
        row("wrong order", "<b>1<i>2</b>3</i>4", "<p><b>1</b><b><i>2</i></b><i>3</i>4</p>");
        row("format over blocks", "<b>1<p>2</b>3", "<p><b>1</b></p><p><b>2</b>3</p>");
        row("styles", "<span style='font-weight:600;FONT-STYLE:italic'>a<b style='font-weight:normal'>b</b></span>",
            "<p><b><i>a</i></b><i>b</i></p>");
        row("fonts",
            "<b style='font:7.0pt Bold'>a<i style='font: 700 12px/1.5 b'>b<b style='font:inherit'>c</b></i></b>",
            "<p>a<b>bc</b></p>");
        row("style sheet",
            "<style><!-- /* } */ @import 'x'; @media print{.b{display:none}} .b, p.i{font-weight:bold} p.i "
            "{font-style:italic} a b{display:none} --></style><p class='x i'>1<span class=B>2",
            "<p><b><i>12</i></b></p>");
        row("hidden", "<title>t</title>a<span style='display:none'>b<p>c</span>d<script>e</script><!-- f -->",
            "<p>a</p><p>d</p>");
        row("headings", "<h1>a</h1><h3 class=x>b<br></h3><h4>c</h4>d", "<h1>a</h1><h3>b</h3><p><b>c</b></p><p>d</p>");
        row("lists", "<ul><li>a<li><p>b</p><p>c</p><ol><li><h2>d</h2></ol><li></ul>e",
            "<ul><li>a</li></ul><ul><li>b</li></ul><p>c</p><ul><li><h2>d</h2></li></ul>"
            "<ul><li style=\"-qt-paragraph-type:empty;\"><br /></li></ul><p>e</p>");
        row("table", "<table><tr><th>a<td>b<tr><td>c</table>d", "<p><b>a</b></p><p>b</p><p>c</p><p>d</p>");
        row("breaks", "a<br>b<br><p>c<br><br></p><div><br></div>d",
            u"<p>a<br/>b</p><p>c<br/></p>"_s + empty + u"<p>d</p>"_s);
        row("own dialect", "<p></p><p><b>a</b><br/></p><ul><li><p></p></li></ul>",
            empty + u"<p><b>a</b><br/></p><ul><li style=\"-qt-paragraph-type:empty;\"><br /></li></ul>"_s);
        row("kept blanks", "<pre>\n a  b\r\n\nc</pre><span style='white-space:pre-wrap'> d </span>",
            u"<p> a  b</p>"_s + empty + u"<p>c</p><p> d </p>"_s);
        row("separators", "a\u2028b\u2029c\u00a0d", "<p>a<br/>b</p><p>c\u00a0d</p>");
        row("structure", "a\uFFFC\uFDD0b&#xFDD1;&#0;c", "<p>ab\uFFFDc</p>");
        row("pictures", "a<img src='http://x/y.png' alt=z><svg><image href='http://x'></svg>b", "<p>ab</p>");
        row("windows characters", "&#146;&alpha;&nosuch;", "<p>\u2019\u03b1&amp;nosuch;</p>");

        row("link", "<a href=https://x/?a=1&amp;b target=y onclick=z>a<p>b</a>c",
            "<p><a href=\"https://x/?a=1&amp;b\">a</a></p><p><a href=\"https://x/?a=1&amp;b\">b</a>c</p>");
        row("harmless schemes", "<a href='MAILTO:a@b'>a</a><a href='tel:1'>b</a><a href=' sip:c'>c</a>",
            "<p><a href=\"MAILTO:a@b\">a</a><a href=\"tel:1\">b</a><a href=\"sip:c\">c</a></p>");
        const QString unsafe =
            u"javascript:x|JaVa&#9;Script:x|&#1;javascript:x|java\nscript:x|data:text/html,x|vbscript:x|"
            "file:///x|//x/y|x.html|#x|qrc:/x|:x|"_s;
        for (const QString &target : unsafe.split(u'|'))
            row("target "_L1 + target.simplified(), u"<a href='%1'>a</a>"_s.arg(target), "<p>a</p>");
        row("unsafe link", "<a href='https://x\" onclick=\"y<b>\u2028'>a</a>",
            "<p><a href=\"https://x%22%20onclick=%22y%3Cb%3E\">a</a></p>");

        row("cut tag", "<p>a <b>b</b> <a href=\"htt", "<p>a <b>b</b> &lt;a href=\"htt</p>");
        row("cut reference", "a &am", "<p>a &amp;am</p>");
        row("cut comment", "a<!-- b", "<p>a&lt;!-- b</p>");
        row("stray ends", "</b>a</div>b</p></li>c", "<p>a</p><p>b</p><p>c</p>");
    }

    void reduces()
    {
        QFETCH(QString, html);
        QFETCH(QString, expected);
        const QString reduced = UntrustedHtml::reduced(html, UntrustedHtmlOracle::schemes());
        QCOMPARE(reduced, u"<body style=\"white-space:pre-wrap\">"_s + expected);
        QCOMPARE(UntrustedHtmlOracle::fault(html), QString());
    }

    void bombs_data()
    {
        const Table<QString> row{"html"};
        constexpr int many = 300000;
        for (const char *piece :
             {"&", "<", "</", "<b>", "</b>", "<div>", "<p></p>", "<a href=https://x>a<p>", "<!--", "&#", "<br>", "<li>",
              "<table><tr><td>", "<style>", "<b><i></b>", "<x y='", "\u0301", "\u00a0"})
            row(piece, QString::fromUtf8(piece).repeated(many));
        row("link over paragraphs", u"<a href=https://%1>"_s.arg(QString(many, u'x')) + u"<p>y"_s.repeated(many));
        row("unended quote", u"<a href=\""_s.repeated(many));
        row("deep wrong order", u"<b>"_s.repeated(many) + u"<i>"_s.repeated(many) + u"</b>"_s.repeated(many));
        row("braces", u"<style>"_s + u"@x{"_s.repeated(many) + u"</style>"_s + u"<p class=x>"_s.repeated(many));
        row("classes", u"<style>x{}</style><p class='"_s + u"x "_s.repeated(many) + u"'>y"_s);
    }

    //! Where time grew with the square of the length these would take minutes.
    void bombs()
    {
        QFETCH(QString, html);
        QElapsedTimer timer;
        timer.start();
        const qsizetype size = UntrustedHtml::reduced(html, UntrustedHtmlOracle::schemes()).size();
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY2(size < 20 * html.size(), qPrintable(QString::number(size)));
    }

    void longRuns()
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
    void anyMarkup()
    {
        const int rounds = qEnvironmentVariableIntValue("UITOOLKIT_FUZZ_ROUNDS");
        for (int seed = 1; seed <= (rounds > 0 ? rounds : 2000); ++seed) {
            const QString html = UntrustedHtmlOracle::random(quint32(seed));
            const QString fault = UntrustedHtmlOracle::fault(html);
            QVERIFY2(fault.isEmpty(), qPrintable(u"seed %1: %2\n%3"_s.arg(seed).arg(fault, html)));
        }
    }
};

QTEST_MAIN(tst_UntrustedHtml)
#include "tst_untrustedhtml.moc"
