#include "RichTextExporter.h"

#include "RichTextFormat.h"

#include <QStringBuilder>
#include <QTextDocument>
#include <QTextFragment>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t zeroWidthSpace = 0x200B;

void appendFragment(QString &html, const QTextFragment &fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    const bool isLink = format.isAnchor();
    const bool isBold = format.fontWeight() > RichText::heaviestNormalWeight;
    const bool isItalic = format.fontItalic();
    const bool isUnderlined = format.fontUnderline();
    if (isLink)
        html += "<a href=\""_L1 % format.anchorHref() % "\" target=\"_blank\">"_L1;
    if (isBold)
        html += "<b>"_L1;
    if (isItalic)
        html += "<i>"_L1;
    if (isUnderlined)
        html += "<u>"_L1;
    html += fragment.text();
    if (isUnderlined)
        html += "</u>"_L1;
    if (isItalic)
        html += "</i>"_L1;
    if (isBold)
        html += "</b>"_L1;
    if (isLink)
        html += "</a>"_L1;
}

void appendBlock(QString &html, const QTextBlock &block)
{
    const bool isItem = block.textList();
    const int level = block.blockFormat().headingLevel();
    const bool isHeading = RichText::isHeadingLevel(level);
    const QChar digit(u'0' + level);
    if (isItem)
        html += "<ul><li>"_L1;
    if (isHeading)
        html += "<h"_L1 % digit % u'>';
    else
        html += "<p>"_L1;
    for (auto it = block.begin(); !it.atEnd(); ++it)
        appendFragment(html, it.fragment());
    if (isHeading)
        html += "</h"_L1 % digit % u'>';
    else
        html += "</p>"_L1;
    if (isItem)
        html += "</li></ul>"_L1;
}

} // namespace

QString RichTextExporter::toStdHtml(const QTextDocument *document)
{
    if (!document || document->isEmpty())
        return {};
    QString html;
    html.reserve(2 * document->characterCount());
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        appendBlock(html, block);
    html.replace(QChar::Nbsp, u' ');
    html.replace(QChar(QChar::LineSeparator), "<br/>"_L1);
    html.remove(QChar(zeroWidthSpace));
    // Each item comes with a list of its own until here.
    html.remove("</ul><ul>"_L1);
    return html;
}
