#pragma once

#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextFormat>
#include <QTextListFormat>

#include <array>

class QTextDocument;

//! The small formatting model of the compose area: bold, italic, underline, three levels of headings, bullets and links.
namespace RichText {

inline constexpr int boldWeight = 700;
inline constexpr int normalWeight = 400;
//! Weights above this one look bold.
inline constexpr int heaviestNormalWeight = 500;

inline constexpr QTextListFormat::Style bulletStyle = QTextListFormat::ListDisc;

//! In the UserProperty of text that mentions somebody.
inline constexpr QLatin1StringView mentionMarker{"mentionme"};

inline constexpr int highestHeadingLevel = 3;

struct HeadingMetrics
{
    qreal topMargin;    //!< pixels
    qreal bottomMargin; //!< pixels
    qreal scale;        //!< of the font, to that of ordinary text
    int weight;
};

//! By level; level 0 is ordinary text.
inline constexpr std::array<HeadingMetrics, highestHeadingLevel + 1> headings = {{
    {0, 0, 1.0, normalWeight},
    {14, 6, 2.0, boldWeight},
    {10, 6, 1.5, boldWeight},
    {8, 6, 1.2, boldWeight},
}};

inline bool isHeadingLevel(int level)
{
    return level > 0 && level <= highestHeadingLevel;
}

bool isBold(const QTextCharFormat &format);

//! Number of characters, without the paragraph separator that closes every document; 0 for null.
int length(const QTextDocument *document);

//! The first block of the range \a from ... \a to; positions behind the end mean the end. Invalid for null.
QTextBlock firstBlock(const QTextDocument *document, int from);
//! True while \a block belongs to a range that ends at \a to.
bool inRange(const QTextBlock &block, int to);

//! Makes \a block a heading of \a level, or ordinary text for level 0.
void applyHeading(const QTextBlock &block, int level, qreal basePointSize);

//! Makes headings of the blocks whose user state holds a level, as sanitised text brings them.
void restoreHeadings(const QTextDocument *document, int from, int to, qreal basePointSize);

//! \a format without what makes it a link.
QTextCharFormat withoutLink(QTextCharFormat format);

} // namespace RichText
