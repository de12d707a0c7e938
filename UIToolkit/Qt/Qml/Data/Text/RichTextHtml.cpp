#include "RichTextHtml.h"

#include "HtmlText.h"
#include "RichTextFormat.h"

#include <QStringBuilder>
#include <QTextDocument>
#include <QTextFragment>

using namespace Qt::StringLiterals;

namespace {

// What makes the text engine read its own HTML: blanks count, and the numbers of blocks and of paragraphs are the same.
constexpr auto head =
    "<meta name=\"qrichtext\" content=\"1\" /><style type=\"text/css\">p, li { white-space: pre-wrap; }</style>"_L1;
constexpr auto listStart = "<ul style=\"margin: 0px; -qt-list-indent: 1;\">"_L1;
constexpr auto blockStyle = " style=\"margin: 0px; -qt-block-indent: 0; text-indent: 0px;"_L1;
constexpr auto emptyBlockStyle = " -qt-paragraph-type: empty;"_L1;

//! What tells the format from that of ordinary text.
QString styleOf(const QTextCharFormat &format, const QFont &ordinary)
{
    QString style;
    if (format.hasProperty(QTextFormat::FontWeight) && format.fontWeight() != ordinary.weight())
        style += "font-weight: "_L1 % QString::number(format.fontWeight()) % u';';
    if (format.hasProperty(QTextFormat::FontItalic) && format.fontItalic() != ordinary.italic())
        style += format.fontItalic() ? "font-style: italic;"_L1 : "font-style: normal;"_L1;
    if (format.hasProperty(QTextFormat::FontUnderline) && format.fontUnderline() != ordinary.underline())
        style += format.fontUnderline() ? "text-decoration: underline;"_L1 : "text-decoration: none;"_L1;
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
        const QColor color = format.foreground().color();
        style +=
            u"color: rgba(%1, %2, %3, %4);"_s.arg(color.red()).arg(color.green()).arg(color.blue()).arg(color.alphaF());
    }
    return style;
}

class Writer
{
public:
    explicit Writer(const QTextDocument &document)
        : m_defaultFont(document.defaultFont())
    {
        m_html.reserve(2 * document.characterCount());
        m_html += head;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            appendBlock(block);
    }

    QString take() { return std::move(m_html); }

private:
    void appendBlock(const QTextBlock &block)
    {
        const bool isItem = block.textList();
        const bool isEmpty = block.length() == 1;
        const auto tag = isItem ? "li"_L1 : "p"_L1;
        if (isItem)
            m_html += listStart;
        m_html += u'<' % tag % blockStyle;
        if (isEmpty)
            m_html += emptyBlockStyle;
        if (block.userState() != -1)
            m_html += " -qt-user-state: "_L1 % QString::number(block.userState()) % u';';
        m_html += "\">"_L1;
        if (isEmpty)
            m_html += "<br />"_L1;
        for (auto it = block.begin(); !it.atEnd(); ++it)
            appendFragment(it.fragment());
        m_html += "</"_L1 % tag % u'>';
        if (isItem)
            m_html += "</ul>"_L1;
    }

    void appendFragment(const QTextFragment &fragment)
    {
        const QTextCharFormat format = fragment.charFormat();
        const QString target = format.isAnchor() ? format.anchorHref() : QString();
        const QString style = styleOf(format, m_defaultFont);
        if (!target.isEmpty())
            m_html += "<a href=\""_L1 % target.toHtmlEscaped() % "\">"_L1;
        if (!style.isEmpty())
            m_html += "<span style=\""_L1 % style % "\">"_L1;
        const QString text = fragment.text();
        for (const QChar c : text) {
            if (c == QChar::LineSeparator)
                m_html += "<br />"_L1;
            else
                HtmlText::append(m_html, c);
        }
        if (!style.isEmpty())
            m_html += "</span>"_L1;
        if (!target.isEmpty())
            m_html += "</a>"_L1;
    }

    QString m_html;
    QFont m_defaultFont;
};

} // namespace

bool RichTextHtml::isPlainLine(const QTextDocument &document)
{
    const QTextBlock block = document.begin();
    if (document.blockCount() != 1 || block.textList() || block.userState() != -1)
        return false;
    const QFont ordinary = document.defaultFont();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        if (format.isAnchor() || !styleOf(format, ordinary).isEmpty())
            return false;
    }
    return true;
}

QString RichTextHtml::toInsertable(const QTextDocument &document)
{
    return Writer(document).take();
}
