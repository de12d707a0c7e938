#pragma once

#include <QColor>
#include <QFont>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

//! Brings documents down to the formatting model of the compose area.
namespace RichTextSanitizer {

//! A copy of \a source that holds nothing but supported formats. A heading's level is the user state of its block: that
//! is how it gets through HTML. \a linkColor: the colour of mentions.
std::unique_ptr<QTextDocument> sanitized(const QTextDocument &source, const QFont &defaultFont,
                                         const QColor &linkColor);

//! Inserts \a document, which is sanitised, at \a cursor, by way of HTML.
void insert(const QTextDocument &document, QTextCursor &cursor);

//! Removes what is selected, with the format of the one paragraph that is left of a whole document.
void removeSelection(QTextCursor &cursor);

//! Inserts plain text so that its paragraphs do not join the list that \a cursor is in.
void insertOutsideList(const QString &text, QTextCursor &cursor, const QTextCharFormat &charFormat);

} // namespace RichTextSanitizer
