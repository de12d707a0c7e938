#pragma once

#include <QString>

#include "korvuui_export.h"

//! What a reader sees of rich text, without the text engine: that one takes minutes over some texts of a few hundred
//! bytes, while these functions take time in proportion to the length and may be given texts from anywhere.
namespace PlainText {

//! The text of \a html as a reader sees it: tags, comments, styles and scripts gone, character references decoded, runs
//! of blanks made one blank (except in preformatted text), blocks and line breaks on lines of their own, table cells
//! apart by a blank, pictures replaced by their alternative text and emoji pictures by their emoji.
KORVUUI_EXPORT QString fromHtml(const QString &html);

//! As fromHtml, but a text without any tag is returned as it is: it was plain already.
KORVUUI_EXPORT QString removeFormatting(const QString &text);

//! True when \a html holds an anchor with a target. A bare address in the text is no link.
KORVUUI_EXPORT bool hasLink(const QString &html);

//! The reverse of fromHtml: markup that shows \a plainText as it is, blanks and line breaks included.
KORVUUI_EXPORT QString toHtml(const QString &plainText);

//! \a text on one line: line and paragraph breaks become blanks.
KORVUUI_EXPORT QString singleLine(QString text);

} // namespace PlainText
