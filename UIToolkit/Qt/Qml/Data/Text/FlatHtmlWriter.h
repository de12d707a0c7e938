#pragma once

#include "TextRunGuard.h"

#include <QString>

/*!
    Writes HTML that is a flat row of paragraphs: the only HTML that untrusted text reaches the text engine as.

    A block begins with its first visible character and ends with endBlock().
*/
class FlatHtmlWriter
{
public:
    struct Format
    {
        bool bold = false;
        bool italic = false;
        bool underline = false;
        int link = -1; //!< number of the link, as openLinks are told apart; -1 for none

        bool operator==(const Format &) const = default;
    };

    struct Block
    {
        int headingLevel = 0;
        bool isItem = false;
    };

    //! \a sourceSize: length of the text that is rewritten; what is written stays in proportion to it.
    explicit FlatHtmlWriter(qsizetype sourceSize);

    //! What the next block will be, if none is open.
    void setNextBlock(const Block &block) { m_next = block; }
    bool isBlockOpen() const { return m_open; }
    //! Grows with each block.
    int blockCount() const { return m_blockCount; }

    void character(QChar c, const Format &format, const QString &linkTarget);
    void lineBreak(const Format &format, const QString &linkTarget);
    void endBlock();
    void emptyBlock();

    QString take();

private:
    void openBlock();
    void setFormat(const Format &format, const QString &linkTarget);

    QString m_html;
    TextRunGuard m_guard;
    bool m_guardsRuns = false;
    qsizetype m_linkAllowance = 0;
    Block m_next;
    Block m_block;
    Format m_format;
    bool m_linkWritten = false;
    bool m_open = false;
    int m_blockCount = 0;
    int m_emptyBlocks = 0;
};
