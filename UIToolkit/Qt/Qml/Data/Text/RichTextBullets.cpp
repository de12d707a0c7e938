#include "RichTextBullets.h"

#include "RichTextFormat.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

namespace {

bool isBullet(const QTextBlock &block)
{
    const QTextList *list = block.textList();
    return list && list->format().style() == RichText::bulletStyle;
}

void makeBullet(QTextCursor &cursor, const QTextBlock &block)
{
    cursor.setPosition(block.position());
    if (QTextList *list = block.textList()) {
        QTextListFormat format = list->format();
        if (format.style() != RichText::bulletStyle) {
            format.setStyle(RichText::bulletStyle);
            list->setFormat(format);
        }
    } else {
        cursor.createList(RichText::bulletStyle);
    }
    QTextBlockFormat format = cursor.blockFormat();
    if (format.indent() > 0) {
        format.setIndent(0);
        cursor.setBlockFormat(format);
    }
}

} // namespace

bool RichTextBullets::areWhole(const QTextDocument *document, int from, int to)
{
    for (QTextBlock block = RichText::firstBlock(document, from); RichText::inRange(block, to); block = block.next()) {
        if (!isBullet(block))
            return false;
    }
    return true;
}

void RichTextBullets::apply(QTextDocument *document, int from, int to)
{
    // An edit block that changes nothing would still cost a new layout, and there is one after each key.
    QTextCursor cursor;
    for (QTextBlock block = RichText::firstBlock(document, from); RichText::inRange(block, to); block = block.next()) {
        if (isBullet(block) && block.blockFormat().indent() <= 0)
            continue;
        if (cursor.isNull()) {
            cursor = QTextCursor(document);
            cursor.joinPreviousEditBlock();
        }
        makeBullet(cursor, block);
    }
    if (!cursor.isNull())
        cursor.endEditBlock();
}
