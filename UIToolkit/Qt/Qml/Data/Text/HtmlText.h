#pragma once

#include <QString>

//! Text within HTML.
namespace HtmlText {

//! Appends \a c, a character of the text, to \a html. An ampersand that begins no reference stays as it is: the text engine
//! looks every reference up in a long list.
inline void append(QString &html, QChar c)
{
    using namespace Qt::StringLiterals;
    const auto isAsciiLetter = [](QChar x) { return (x >= u'a' && x <= u'z') || (x >= u'A' && x <= u'Z'); };
    if ((isAsciiLetter(c) || c == u'#') && html.endsWith(u'&'))
        html += "amp;"_L1;
    if (c == u'<')
        html += "&lt;"_L1;
    else if (c == u'>')
        html += "&gt;"_L1;
    else
        html += c;
}

} // namespace HtmlText
