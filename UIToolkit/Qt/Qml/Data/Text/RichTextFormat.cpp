#include "RichTextFormat.h"

#include <QTextCursor>
#include <QTextDocument>

namespace {

QTextCharFormat headingCharFormat(int level, qreal basePointSize)
{
    const RichText::HeadingMetrics &metrics = RichText::headings.at(size_t(level));
    QTextCharFormat format;
    format.setFontPointSize(basePointSize * metrics.scale);
    format.setFontWeight(metrics.weight);
    return format;
}

} // namespace

bool RichText::isBold(const QTextCharFormat &format)
{
    return format.hasProperty(QTextFormat::FontWeight) && format.fontWeight() > heaviestNormalWeight;
}

int RichText::length(const QTextDocument *document)
{
    return document ? document->characterCount() - 1 : 0;
}

QTextBlock RichText::firstBlock(const QTextDocument *document, int from)
{
    return document ? document->findBlock(qMin(from, length(document))) : QTextBlock();
}

bool RichText::inRange(const QTextBlock &block, int to)
{
    return block.isValid() && block.position() <= qMin(to, length(block.document()));
}

void RichText::applyHeading(const QTextBlock &block, int level, qreal basePointSize)
{
    const HeadingMetrics &metrics = headings.at(size_t(level));
    QTextBlockFormat blockFormat;
    blockFormat.setHeadingLevel(level);
    blockFormat.setTopMargin(metrics.topMargin);
    blockFormat.setBottomMargin(metrics.bottomMargin);
    blockFormat.setLeftMargin(0);
    blockFormat.setRightMargin(0);
    QTextCursor cursor(block);
    cursor.mergeBlockFormat(blockFormat);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    // An empty block keeps the format for what is typed into it.
    const QTextCharFormat charFormat = headingCharFormat(level, basePointSize);
    if (cursor.hasSelection())
        cursor.mergeCharFormat(charFormat);
    else
        cursor.mergeBlockCharFormat(charFormat);
}

void RichText::restoreHeadings(const QTextDocument *document, int from, int to, qreal basePointSize)
{
    for (QTextBlock block = firstBlock(document, from); inRange(block, to); block = block.next()) {
        const int level = block.userState();
        if (!isHeadingLevel(level))
            continue;
        block.setUserState(-1);
        applyHeading(block, level, basePointSize);
    }
}

QTextCharFormat RichText::withoutLink(QTextCharFormat format)
{
    for (int property :
         {QTextFormat::IsAnchor, QTextFormat::AnchorName, QTextFormat::AnchorHref, QTextFormat::ForegroundBrush})
        format.clearProperty(property);
    return format;
}
