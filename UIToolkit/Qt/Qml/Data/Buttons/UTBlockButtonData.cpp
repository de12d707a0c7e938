#include "UTBlockButtonData.h"

#include "ComponentName.h"

#include <EmojiText.h>
#include <PlainText.h>

#include <QFontMetricsF>
#include <QTextBoundaryFinder>

namespace {

using namespace Qt::StringLiterals;

constexpr int maximumOriginalLength = 4000;
constexpr int maximumShownLength = 400;
constexpr QChar ellipsis(0x2026);

// The beginning of text in at most length characters, never a part of what is seen as one.
QString shortened(const QString &text, int length)
{
    if (text.size() <= length)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(length);
    const qsizetype end = finder.isAtBoundary() ? length : qMax(0, finder.toPreviousBoundary());
    return text.first(end);
}

// The beginning of a text that may be rich, without a tag that lost its end.
QString beginningOf(const QString &text)
{
    if (text.size() <= maximumOriginalLength)
        return text;
    const QString beginning = shortened(text, maximumOriginalLength);
    const qsizetype tag = beginning.lastIndexOf(u'<');
    return tag > beginning.lastIndexOf(u'>') ? beginning.first(tag) : beginning;
}

QString colored(const QString &line, const QColor &color)
{
    const QString escaped = line.toHtmlEscaped();
    return color.isValid() ? "<font color=\"%1\">%2</font>"_L1.arg(color.name(QColor::HexArgb), escaped) : escaped;
}

// Speech pauses between lines, as the eye does.
QString spoken(const QStringList &lines)
{
    QString text;
    for (const QString &line : lines) {
        if (!text.isEmpty())
            text += text.back().isPunct() ? " "_L1 : ", "_L1;
        text += line;
    }
    return text;
}

} // namespace

UTBlockButtonData::UTBlockButtonData(QObject *attachee)
    : KObject(attachee)
{
    if (!ComponentName::check(attachee, "UTBlockButton"))
        return;
    connect(this, &UTBlockButtonData::originalTextChanged, this, &UTBlockButtonData::readOriginal);
    for (auto input : {&UTBlockButtonData::fontChanged, &UTBlockButtonData::accentTextColorChanged,
                       &UTBlockButtonData::secondaryTextColorChanged})
        connect(this, input, this, &UTBlockButtonData::updateDisplayText);
}

void UTBlockButtonData::readOriginal()
{
    QString text = PlainText::removeFormatting(beginningOf(m_originalText));
    for (QChar separator : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator), QChar(u'\r')})
        text.replace(separator, u'\n');

    m_lines.clear();
    int room = maximumShownLength;
    for (const QString &line : text.split(u'\n')) {
        const QString whole = line.simplified();
        if (whole.isEmpty())
            continue;
        const QString part = shortened(whole, room);
        if (part.size() == whole.size()) {
            m_lines.append(whole);
            room -= int(part.size());
            continue;
        }
        m_lines.append(part + ellipsis);
        break;
    }
    set(m_accessibleText, spoken(m_lines), &UTBlockButtonData::accessibleTextChanged);
    updateDisplayText();
}

void UTBlockButtonData::updateDisplayText()
{
    QStringList lines;
    for (const QString &line : m_lines)
        lines.append(colored(line, lines.isEmpty() ? m_accentTextColor : m_secondaryTextColor));
    const QString text =
        EmojiText::replaceEmojisByImages(lines.join("<br>"_L1), qRound(QFontMetricsF(m_font).height()));
    set(m_displayText, text, &UTBlockButtonData::displayTextChanged);
}
