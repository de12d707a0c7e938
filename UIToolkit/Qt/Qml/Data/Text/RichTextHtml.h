#pragma once

#include <QString>

class QTextDocument;

//! The HTML by which sanitised text gets into another document.
namespace RichTextHtml {

//! Writes \a document, which is sanitised, so that QTextCursor::insertHtml() reads it as it is. Unlike the text engine's own
//! HTML it fixes neither the direction of paragraphs nor the font, which are to follow the text that it is put into.
QString toInsertable(const QTextDocument &document);

//! Whether \a document is one paragraph of ordinary text, so that its text says as much as its HTML.
bool isPlainLine(const QTextDocument &document);

} // namespace RichTextHtml
