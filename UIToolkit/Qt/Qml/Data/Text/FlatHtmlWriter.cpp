#include "FlatHtmlWriter.h"

#include "HtmlText.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace {

// A link over many paragraphs is written in each of them; its text alone remains when that would take more.
constexpr qsizetype linkAllowanceOfSmallText = 64 * 1024;

// Blank lines in a row. More of them hold no text, and each takes the text engine longer than a page of it.
constexpr int mostEmptyBlocks = 1000;

} // namespace

FlatHtmlWriter::FlatHtmlWriter(qsizetype sourceSize)
    : m_guardsRuns(sourceSize > TextRunGuard::shortText)
    , m_linkAllowance(sourceSize + linkAllowanceOfSmallText)
{
    // Blanks are written where they are seen, and only there.
    m_html.reserve(sourceSize);
    m_html += "<body style=\"white-space:pre-wrap\">"_L1;
}

void FlatHtmlWriter::character(QChar c, const Format &format, const QString &linkTarget)
{
    if (!m_open)
        openBlock();
    if (format != m_format)
        setFormat(format, linkTarget);
    if (m_guardsRuns && m_guard.needsBreakBefore(c))
        m_html += QChar(TextRunGuard::breakOpportunity);
    HtmlText::append(m_html, c);
}

void FlatHtmlWriter::lineBreak(const Format &format, const QString &linkTarget)
{
    if (!m_open)
        openBlock();
    if (format != m_format)
        setFormat(format, linkTarget);
    m_html += "<br/>"_L1;
    m_guard.startLine();
}

void FlatHtmlWriter::endBlock()
{
    if (!m_open)
        return;
    setFormat({}, {});
    if (m_block.headingLevel > 0)
        m_html += "</h"_L1 % QChar(u'0' + m_block.headingLevel) % u'>';
    else if (!m_block.isItem)
        m_html += "</p>"_L1;
    if (m_block.isItem)
        m_html += "</li></ul>"_L1;
    m_open = false;
    m_guard.startLine();
}

void FlatHtmlWriter::emptyBlock()
{
    endBlock();
    ++m_blockCount;
    if (++m_emptyBlocks > mostEmptyBlocks)
        return;
    // The way in which the text engine itself writes it.
    const auto content = " style=\"-qt-paragraph-type:empty;\"><br /></"_L1;
    if (m_next.isItem)
        m_html += "<ul><li"_L1 % content % "li></ul>"_L1;
    else
        m_html += "<p"_L1 % content % "p>"_L1;
}

QString FlatHtmlWriter::take()
{
    endBlock();
    return std::move(m_html);
}

void FlatHtmlWriter::openBlock()
{
    m_block = m_next;
    m_open = true;
    ++m_blockCount;
    m_emptyBlocks = 0;
    // A list for each item, as the compose area has it: the text engine's time grows with the square of a list's length.
    if (m_block.isItem)
        m_html += "<ul><li>"_L1;
    if (m_block.headingLevel > 0)
        m_html += "<h"_L1 % QChar(u'0' + m_block.headingLevel) % u'>';
    else if (!m_block.isItem)
        m_html += "<p>"_L1;
}

void FlatHtmlWriter::setFormat(const Format &format, const QString &linkTarget)
{
    const bool sameLink = format.link == m_format.link;
    if (m_format.underline)
        m_html += "</u>"_L1;
    if (m_format.italic)
        m_html += "</i>"_L1;
    if (m_format.bold)
        m_html += "</b>"_L1;
    if (!sameLink) {
        if (m_linkWritten)
            m_html += "</a>"_L1;
        m_linkWritten = format.link >= 0 && linkTarget.size() <= m_linkAllowance;
        if (m_linkWritten) {
            m_linkAllowance -= linkTarget.size();
            m_html += "<a href=\""_L1 % linkTarget.toHtmlEscaped() % "\">"_L1;
        }
    }
    if (format.bold)
        m_html += "<b>"_L1;
    if (format.italic)
        m_html += "<i>"_L1;
    if (format.underline)
        m_html += "<u>"_L1;
    m_format = format;
}
