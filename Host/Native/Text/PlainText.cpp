#include "PlainText.h"

#include "EmojiText.h"
#include "Markup.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView blockElements[] = {
    "address"_L1, "article"_L1, "aside"_L1, "blockquote"_L1, "body"_L1, "center"_L1, "dd"_L1, "div"_L1, "dl"_L1,
    "dt"_L1,      "footer"_L1,  "form"_L1,  "h1"_L1,         "h2"_L1,   "h3"_L1,     "h4"_L1, "h5"_L1,  "h6"_L1,
    "head"_L1,    "header"_L1,  "hr"_L1,    "html"_L1,       "li"_L1,   "ol"_L1,     "p"_L1,  "pre"_L1, "section"_L1,
    "table"_L1,   "tbody"_L1,   "tfoot"_L1, "thead"_L1,      "tr"_L1,   "ul"_L1,
};

bool isBlock(const Markup::Piece &tag)
{
    return std::any_of(std::begin(blockElements), std::end(blockElements),
                       [&](QLatin1StringView name) { return tag.isTag(name); });
}

//! Puts pieces of text on lines as a browser would.
class LineWriter
{
public:
    void setPreformatted(bool preformatted) { m_preformatted = preformatted; }

    void text(const QString &text)
    {
        for (const QChar c : text) {
            const bool isNoBreakSpace = c == QChar::Nbsp;
            if (!m_preformatted && !isNoBreakSpace && c.isSpace()) {
                m_spacePending = m_lineOpen;
            } else if (m_preformatted && c == u'\n') {
                lineBreak();
            } else {
                flushSpace();
                m_result += isNoBreakSpace ? QChar(u' ') : c;
                m_lineOpen = true;
            }
        }
    }

    void space() { m_spacePending = m_lineOpen; }

    void lineBreak()
    {
        m_result += u'\n';
        m_lineOpen = false;
        m_spacePending = false;
    }

    void blockBoundary()
    {
        if (m_lineOpen)
            lineBreak();
        m_spacePending = false;
    }

    QString take()
    {
        // The last block ends the text, not a line.
        if (m_result.endsWith(u'\n'))
            m_result.chop(1);
        return std::move(m_result);
    }

private:
    void flushSpace()
    {
        if (m_spacePending)
            m_result += u' ';
        m_spacePending = false;
    }

    QString m_result;
    bool m_preformatted = false;
    bool m_lineOpen = false;
    bool m_spacePending = false;
};

class HtmlToText
{
public:
    QString convert(const QString &html)
    {
        Markup::Reader reader(html);
        while (const auto piece = reader.next()) {
            switch (piece->kind) {
            case Markup::PieceKind::Text:
            case Markup::PieceKind::Unended:
                if (!m_inTitle)
                    m_writer.text(Markup::decodeReferences(piece->source));
                break;
            case Markup::PieceKind::Tag:
                tag(*piece);
                break;
            case Markup::PieceKind::RawText:
                // The text engine writes this into the style sheet of all that it exports.
                m_paragraphsPreformatted = m_paragraphsPreformatted || piece->source.contains("pre-wrap"_L1);
                break;
            case Markup::PieceKind::Other:
                break;
            }
        }
        return m_writer.take();
    }

private:
    void tag(const Markup::Piece &tag)
    {
        if (tag.isTag("br"_L1)) {
            m_writer.lineBreak();
        } else if (tag.isTag("td"_L1) || tag.isTag("th"_L1)) {
            m_writer.space();
        } else if (tag.isTag("title"_L1)) {
            m_inTitle = !tag.closing;
        } else if (tag.isTag("img"_L1)) {
            picture(tag);
        } else if (isBlock(tag)) {
            m_writer.blockBoundary();
            if (tag.isTag("pre"_L1) || (m_paragraphsPreformatted && (tag.isTag("p"_L1) || tag.isTag("li"_L1))))
                m_writer.setPreformatted(!tag.closing);
        }
    }

    void picture(const Markup::Piece &tag)
    {
        QString text = EmojiText::emojiOfImage(tag.source);
        if (text.isEmpty())
            text = Markup::attribute(tag.source, "alt"_L1).value_or(QString());
        m_writer.text(text);
    }

    LineWriter m_writer;
    bool m_paragraphsPreformatted = false;
    bool m_inTitle = false;
};

} // namespace

QString PlainText::fromHtml(const QString &html)
{
    return HtmlToText().convert(html);
}

QString PlainText::removeFormatting(const QString &text)
{
    return Markup::hasTags(text) ? fromHtml(text) : text;
}

bool PlainText::hasLink(const QString &html)
{
    Markup::Reader reader(html);
    while (const auto piece = reader.next()) {
        if (!piece->closing && piece->isTag("a"_L1)) {
            const auto target = Markup::attribute(piece->source, "href"_L1);
            if (target && !target->trimmed().isEmpty())
                return true;
        }
    }
    return false;
}

QString PlainText::toHtml(const QString &plainText)
{
    const QString escaped = plainText.toHtmlEscaped();
    QString result;
    result.reserve(escaped.size());
    // A blank at the start of a line or after another one would be dropped.
    bool blankWouldVanish = true;
    for (qsizetype i = 0; i < escaped.size(); ++i) {
        const QChar c = escaped.at(i);
        if (c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
            if (c == u'\r' && i + 1 < escaped.size() && escaped.at(i + 1) == u'\n')
                ++i;
            result += "<br/>"_L1;
            blankWouldVanish = true;
        } else if (c == u'\t') {
            result += "&nbsp;&nbsp;&nbsp;&nbsp;"_L1;
            blankWouldVanish = true;
        } else if (c == u' ' && blankWouldVanish) {
            result += "&nbsp;"_L1;
        } else {
            result += c;
            blankWouldVanish = c == u' ';
        }
    }
    return result;
}

QString PlainText::singleLine(QString text)
{
    text.replace("\r\n"_L1, " "_L1);
    for (QChar &c : text) {
        if (c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(0x85) || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return text;
}
