#pragma once

#include "PlainText.h"
#include "TextRunGuard.h"
#include "UntrustedHtml.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <array>

//! What must hold for the reduced form of any HTML, for the test and for the fuzzer.
namespace UntrustedHtmlOracle {

using namespace Qt::StringLiterals;

inline QStringList schemes()
{
    return {u"http"_s, u"https"_s, u"mailto"_s, u"tel"_s, u"sip"_s};
}

//! Neither blanks nor places for line breaks count as text, nor what is no character to the text engine.
inline QString visibleText(QString text)
{
    return text.removeIf([](QChar c) {
        return c.isSpace() || c < u' ' || c == QChar(TextRunGuard::breakOpportunity) || UntrustedText::isStructure(c);
    });
}

inline QString fault(const QString &html)
{
    const QString reduced = UntrustedHtml::reduced(html, schemes());

    // Nothing but the few tags that it may hold, in the forms that they may have.
    static const QRegularExpression tags(u"<(/?(p|h[123]|ul|li|a|b|i|u)|br ?/|a "
                                         u"href=\"(https?|mailto|tel|sip):[^\"<>\\s]*\"|body style=\"white-space:pre-"
                                         "wrap\"|(p|li) style=\"-qt-paragraph-type:empty;\")>"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    QString text = reduced;
    text.remove(tags);
    if (text.contains(u'<') || text.contains(u'>'))
        return u"other markup in "_s + reduced;

    // All visible text. What hides text, and pictures, are for tests of their own.
    static const QRegularExpression elsewhere(u"display|<img|<title"_s, QRegularExpression::CaseInsensitiveOption);
    if (!html.contains(elsewhere)) {
        const QString expected = visibleText(PlainText::fromHtml(html));
        if (visibleText(PlainText::fromHtml(reduced)) != expected)
            return u"other text in "_s + reduced;
        QTextDocument document;
        document.setHtml(reduced);
        if (visibleText(document.toPlainText()) != expected)
            return u"the text engine reads other text in "_s + reduced;
    }
    if (UntrustedHtml::reduced(reduced, schemes()) != reduced)
        return u"not the same a second time: "_s + reduced;
    return {};
}

//! HTML made of what is known to be difficult.
inline QString random(quint32 seed)
{
    static const std::array pieces = {
        u"<p>"_s,
        u"</p>"_s,
        u"<b>"_s,
        u"</b>"_s,
        u"<i>"_s,
        u"</i>"_s,
        u"<u>"_s,
        u"</u>"_s,
        u"<ul>"_s,
        u"</ul>"_s,
        u"<ol>"_s,
        u"<li>"_s,
        u"</li>"_s,
        u"<h1>"_s,
        u"</h1>"_s,
        u"<h2 x>"_s,
        u"<h5>"_s,
        u"<br>"_s,
        u"<br/>"_s,
        u"<div>"_s,
        u"</div>"_s,
        u"<table>"_s,
        u"<tr>"_s,
        u"<td>"_s,
        u"<th>"_s,
        u"</table>"_s,
        u"<pre>"_s,
        u"</pre>"_s,
        u"<span style='"_s,
        u"font-weight:bold'>"_s,
        u"white-space:pre'>"_s,
        u"</span>"_s,
        u"<a href='"_s,
        u"https://x'>"_s,
        u"javascript:x'>"_s,
        u"</a>"_s,
        u"<!--"_s,
        u"-->"_s,
        u"<style>"_s,
        u"</style>"_s,
        u"b{font-style:italic}"_s,
        u"<script>"_s,
        u"</script>"_s,
        u"&amp;"_s,
        u"&lt;"_s,
        u"&nbsp;"_s,
        u"&#8232;"_s,
        u"&#x1F600;"_s,
        u"&"_s,
        u"<"_s,
        u">"_s,
        u"'"_s,
        u"\""_s,
        u"="_s,
        u" "_s,
        u"\n"_s,
        u"a"_s,
        u"\u05d0"_s,
        u"\u0301"_s,
        u"\U0001F600"_s,
        u"\u2028"_s,
        u"\u2029"_s,
        u"\uFFFC"_s,
        u"\uFDD0"_s,
        u"\u00a0"_s,
        u"<o:p>"_s,
        u"<svg>"_s,
        u"<hr>"_s,
        u"<x/>"_s,
        u"word "_s,
        u"<address>"_s,
        u"</"_s,
    };
    QRandomGenerator generator(seed);
    QString html;
    for (int i = generator.bounded(1, 40); i > 0; --i)
        html += pieces[size_t(generator.bounded(int(pieces.size())))];
    return html;
}

} // namespace UntrustedHtmlOracle
