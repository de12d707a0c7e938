#pragma once

#include <QString>
#include <QStringList>

//! HTML from strangers, made fit for the text engine, which takes minutes over some texts of a few hundred bytes and
//! asks servers for pictures.
namespace UntrustedHtml {

//! The visible text of \a html with the formats that the compose area has, as flat HTML of p, h1 to h3, ul and li, a, b,
//! i, u and br: nothing nested deeper than that, nothing to load, no style but that of an empty paragraph. Of links those
//! stay whose targets name one of the \a linkSchemes, in lower case. Pictures go, except that those of emojis become
//! emojis. Never fails, and takes time in proportion to the length of \a html, as does its result.
QString reduced(const QString &html, const QStringList &linkSchemes);

} // namespace UntrustedHtml
