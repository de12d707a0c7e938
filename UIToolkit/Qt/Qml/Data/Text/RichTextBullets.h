#pragma once

class QTextDocument;

//! Keeps the paragraphs of a document bullet items.
namespace RichTextBullets {

//! True when every block of the range is an item of a disc list.
bool areWhole(const QTextDocument *document, int from, int to);

//! Makes every block of the range an item of a disc list without further indentation, as part of the edit before, so
//! that both are undone together.
void apply(QTextDocument *document, int from, int to);

} // namespace RichTextBullets
