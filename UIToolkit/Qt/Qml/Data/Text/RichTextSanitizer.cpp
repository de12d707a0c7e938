#include "RichTextSanitizer.h"

#include "RichTextFormat.h"
#include "RichTextHtml.h"

#include <QTextFragment>
#include <QTextFrame>
#include <QTextList>
#include <UIToolKitUtils.h>

using namespace Qt::StringLiterals;

namespace {

class Copier
{
public:
    Copier(QTextDocument *target, const QColor &linkColor)
        : m_cursor(target)
        , m_linkColor(linkColor)
        , m_mentionLink(UIToolKitUtils::mentionLink())
    {
    }

    void copy(const QTextDocument &source)
    {
        // Without it each piece of text would have its paragraph laid out, to place the cursor in it.
        m_cursor.beginEditBlock();
        copyFrame(source.rootFrame());
        m_cursor.endEditBlock();
    }

private:
    void copyFrame(const QTextFrame *frame)
    {
        for (auto it = frame->begin(); !it.atEnd(); ++it) {
            if (const QTextFrame *child = it.currentFrame())
                copyFrame(child);
            else if (it.currentBlock().isValid())
                copyBlock(it.currentBlock());
        }
    }

    void copyBlock(const QTextBlock &source)
    {
        m_cursor.movePosition(QTextCursor::End);
        if (!m_cursor.document()->isEmpty())
            m_cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        else if (QTextList *list = m_cursor.currentList()) // of an empty block, whose place this one takes
            list->remove(m_cursor.block());
        const int level = source.blockFormat().headingLevel();
        m_cursor.block().setUserState(RichText::isHeadingLevel(level) ? level : -1);
        if (source.textList())
            m_cursor.createList(RichText::bulletStyle);
        for (auto it = source.begin(); !it.atEnd(); ++it) {
            QString text = it.fragment().text();
            text.remove(QChar::ObjectReplacementCharacter); // in place of a picture
            m_cursor.insertText(text, supportedFormat(it.fragment().charFormat()));
        }
    }

    QTextCharFormat supportedFormat(const QTextCharFormat &source) const
    {
        QTextCharFormat format;
        const QString target = source.isAnchor() ? source.anchorHref() : QString(); // without one it is a mere bookmark
        if (target == m_mentionLink) {
            format.setFontWeight(RichText::boldWeight);
            format.setForeground(m_linkColor);
            format.setProperty(QTextFormat::UserProperty, QString(RichText::mentionMarker));
            return format;
        }
        format.setFontWeight(RichText::isBold(source) ? RichText::boldWeight : RichText::normalWeight);
        format.setFontItalic(source.fontItalic());
        const bool isUnderlined = source.fontUnderline() || !target.isEmpty();
        format.setUnderlineStyle(isUnderlined ? QTextCharFormat::SingleUnderline : QTextCharFormat::NoUnderline);
        if (!target.isEmpty()) {
            format.setAnchor(true);
            format.setAnchorHref(target);
        }
        if (source.property(QTextFormat::UserProperty).toString() == RichText::mentionMarker) {
            format.setProperty(QTextFormat::UserProperty, QString(RichText::mentionMarker));
            format.setForeground(source.foreground());
        }
        return format;
    }

    QTextCursor m_cursor;
    QColor m_linkColor;
    QString m_mentionLink;
};

void clearBlock(QTextCursor &cursor)
{
    if (QTextList *list = cursor.currentList())
        list->remove(cursor.block());
    cursor.setBlockFormat(QTextBlockFormat());
    cursor.setBlockCharFormat(QTextCharFormat());
}

} // namespace

std::unique_ptr<QTextDocument> RichTextSanitizer::sanitized(const QTextDocument &source, const QFont &defaultFont,
                                                            const QColor &linkColor)
{
    auto target = std::make_unique<QTextDocument>();
    target->setUndoRedoEnabled(false);
    target->setDefaultFont(defaultFont);
    Copier(target.get(), linkColor).copy(source);
    return target;
}

void RichTextSanitizer::insert(const QTextDocument &document, QTextCursor &cursor)
{
    // An empty paragraph in HTML would be one more than there was.
    if (document.isEmpty())
        return;
    if (!RichTextHtml::isPlainLine(document)) {
        cursor.insertHtml(RichTextHtml::toInsertable(document));
        return;
    }
    // What the text engine does with the HTML of such a line, and much quicker.
    if (cursor.position() == 0)
        clearBlock(cursor);
    cursor.insertText(document.toRawText(), QTextCharFormat());
}

void RichTextSanitizer::removeSelection(QTextCursor &cursor)
{
    cursor.removeSelectedText();
    if (!cursor.document()->isEmpty())
        return;
    // Of all that was there a paragraph is left, which would make the last of the new ones look like itself.
    clearBlock(cursor);
}

void RichTextSanitizer::insertOutsideList(const QString &text, QTextCursor &cursor, const QTextCharFormat &charFormat)
{
    QTextBlockFormat blockFormat = cursor.blockFormat();
    blockFormat.setObjectIndex(-1);
    cursor.beginEditBlock();
    bool isFirst = true;
    for (const QStringView line : QStringView(text).tokenize(QChar(QChar::ParagraphSeparator))) {
        if (!isFirst)
            cursor.insertBlock(blockFormat, charFormat);
        cursor.insertText(line.toString(), charFormat);
        isFirst = false;
    }
    cursor.endEditBlock();
}
