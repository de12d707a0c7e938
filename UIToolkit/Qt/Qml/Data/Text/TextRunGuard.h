#pragma once

#include <QString>

/*!
    Gives long runs of text without a place for a line break such places, as zero-width spaces: the text engine takes
    time in proportion to the square of such a run's length. Fed with a text character by character.
*/
class TextRunGuard
{
public:
    //! Texts no longer than this are quick to lay out as they are.
    static constexpr qsizetype shortText = 16 * 1024;
    static constexpr char16_t breakOpportunity = 0x200B;

    //! True when a break has to stand before \a c, the next character of the text.
    bool needsBreakBefore(QChar c);
    void startLine() { *this = {}; }

private:
    int m_runLength = 0;
    QChar m_previous;
};

//! Plain text from strangers.
namespace UntrustedText {

//! \a text with places for line breaks, and without the characters that mean structure to the text engine.
QString guarded(const QString &text);

//! True for the characters that the text engine takes for a picture or a frame.
bool isStructure(QChar c);

} // namespace UntrustedText
