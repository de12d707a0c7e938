#include "TextRunGuard.h"

namespace {

constexpr int longestRun = 1000;
// A run of combining marks as long as this is no letter any more.
constexpr int longestRunWithLetter = longestRun + 64;

// Between two of these there is always a place for a line break.
bool isIdeograph(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= 0x3400 && code <= 0x9FFF) || (code >= 0xAC00 && code <= 0xD7A3);
}

bool endsRun(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator || c == QChar(TextRunGuard::breakOpportunity);
}

bool continuesLetter(QChar previous, QChar c)
{
    constexpr char16_t zeroWidthJoiner = 0x200D;
    const auto joins = [](QChar x) {
        return x == QChar(zeroWidthJoiner) || (x >= QChar(0xFE00) && x <= QChar(0xFE0F));
    };
    return c.isMark() || joins(c) || joins(previous);
}

} // namespace

bool TextRunGuard::needsBreakBefore(QChar c)
{
    const QChar previous = m_previous;
    m_previous = c;
    if (endsRun(c) || (isIdeograph(previous) && isIdeograph(c))) {
        m_runLength = 0;
        return false;
    }
    if (++m_runLength < longestRun || c.isLowSurrogate()
        || (m_runLength < longestRunWithLetter && continuesLetter(previous, c)))
        return false;
    m_runLength = 0;
    return true;
}

bool UntrustedText::isStructure(QChar c)
{
    constexpr char16_t frameStart = 0xFDD0;
    constexpr char16_t frameEnd = 0xFDD1;
    return c == QChar(QChar::ObjectReplacementCharacter) || c == QChar(frameStart) || c == QChar(frameEnd)
        || c == QChar(QChar::Null);
}

QString UntrustedText::guarded(const QString &text)
{
    const bool isLong = text.size() > TextRunGuard::shortText;
    TextRunGuard guard;
    QString result;
    result.reserve(text.size() + text.size() / longestRun);
    for (const QChar c : text) {
        if (isStructure(c))
            continue;
        if (isLong && guard.needsBreakBefore(c))
            result += QChar(TextRunGuard::breakOpportunity);
        result += c;
    }
    return result;
}
