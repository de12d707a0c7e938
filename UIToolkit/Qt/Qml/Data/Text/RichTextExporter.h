#pragma once

#include <QString>

class QTextDocument;

//! The HTML in which the compose area hands out what it holds.
namespace RichTextExporter {

//! \a document in the fixed dialect of p, h1 to h3, ul and li, a, b, i, u and br; empty for null and for a document
//! without text. Text is not escaped, on purpose.
QString toStdHtml(const QTextDocument *document);

} // namespace RichTextExporter
