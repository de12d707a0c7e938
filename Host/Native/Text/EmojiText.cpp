#include "EmojiText.h"

#include "EmojiRanges.h"
#include "Markup.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t firstEmojiCharacter = 0xA0; // but for keycaps
constexpr char32_t zeroWidthJoiner = 0x200D;
constexpr char32_t combiningKeycap = 0x20E3;
constexpr char32_t textSelector = 0xFE0E;
constexpr char32_t emojiSelector = 0xFE0F;
constexpr EmojiRanges::CodePointRange skinTones = {0x1F3FB, 0x1F3FF};
constexpr EmojiRanges::CodePointRange regionalIndicators = {0x1F1E6, 0x1F1FF};
constexpr EmojiRanges::CodePointRange tagCharacters = {0xE0020, 0xE007E};
constexpr char32_t tagEnd = 0xE007F;

constexpr qreal defaultImageHeight = 16;
constexpr qreal maximumImageHeight = 512;
constexpr auto imageUrlStart = "image://emoji/"_L1;

bool contains(const EmojiRanges::CodePointRange &range, char32_t c)
{
    return c >= range.first && c <= range.last;
}

template<std::size_t N>
bool contains(const EmojiRanges::CodePointRange (&ranges)[N], char32_t c)
{
    const auto found = std::lower_bound(std::begin(ranges), std::end(ranges), c,
                                        [](const auto &range, char32_t value) { return range.last < value; });
    return found != std::end(ranges) && found->first <= c;
}

//! Walks over the code points of a text.
class Cursor
{
public:
    Cursor(QStringView text, qsizetype position)
        : m_text(text)
        , m_start(position)
        , m_position(position)
    {
    }

    //! The code point here; 0 at the end and for half a surrogate pair.
    char32_t peek() const
    {
        if (m_position >= m_text.size())
            return 0;
        const QChar c = m_text.at(m_position);
        if (!c.isSurrogate())
            return c.unicode();
        if (c.isHighSurrogate() && m_position + 1 < m_text.size() && m_text.at(m_position + 1).isLowSurrogate())
            return QChar::surrogateToUcs4(c, m_text.at(m_position + 1));
        return 0;
    }

    void advance()
    {
        m_position += QChar::requiresSurrogates(peek()) ? 2 : 1;
        ++m_codePoints;
    }

    bool skip(char32_t c)
    {
        if (peek() != c)
            return false;
        advance();
        return true;
    }

    bool isFull() const { return m_codePoints >= EmojiText::maximumCodePoints; }
    qsizetype length() const { return m_position - m_start; }

private:
    QStringView m_text;
    qsizetype m_start;
    qsizetype m_position;
    int m_codePoints = 0;
};

bool isKeycapBase(char32_t c)
{
    return (c >= U'0' && c <= U'9') || c == U'#' || c == U'*';
}

qsizetype keycapLength(Cursor cursor)
{
    cursor.advance();
    cursor.skip(emojiSelector);
    return cursor.skip(combiningKeycap) ? cursor.length() : 0;
}

qsizetype flagLength(Cursor cursor)
{
    cursor.advance();
    if (!contains(regionalIndicators, cursor.peek()))
        return 0;
    cursor.advance();
    return cursor.length();
}

enum class Presentation { None, Text, Emoji };

//! Steps over one member of a joined sequence: a character with what modifies it.
Presentation skipElement(Cursor &cursor)
{
    const char32_t base = cursor.peek();
    if (!contains(EmojiRanges::pictographic, base) || contains(regionalIndicators, base))
        return Presentation::None;
    Presentation presentation = contains(EmojiRanges::presentation, base) ? Presentation::Emoji : Presentation::Text;
    cursor.advance();
    if (cursor.peek() == textSelector)
        return Presentation::None;
    if (contains(EmojiRanges::modifierBase, base) && contains(skinTones, cursor.peek())) {
        cursor.advance();
        presentation = Presentation::Emoji;
    } else if (cursor.skip(emojiSelector)) {
        presentation = Presentation::Emoji;
        // An enclosing keycap after a pictograph occurs in old messages.
        cursor.skip(combiningKeycap);
    }
    Cursor tags = cursor;
    while (contains(tagCharacters, tags.peek()) && !tags.isFull())
        tags.advance();
    if (tags.length() > cursor.length() && tags.skip(tagEnd))
        cursor = tags;
    return presentation;
}

void appendImage(QString &result, QStringView emoji, const QString &size)
{
    result += "<img src=\""_L1;
    result += imageUrlStart;
    bool first = true;
    for (Cursor cursor(emoji, 0); cursor.length() < emoji.size(); cursor.advance()) {
        if (!first)
            result += u'-';
        result += QString::number(uint(cursor.peek()), 16);
        first = false;
    }
    result += "\" width=\""_L1 + size + "\" height=\""_L1 + size + "\" style=\"vertical-align: middle;\" />"_L1;
}

void appendWithImages(QString &result, QStringView text, const QString &size)
{
    qsizetype copied = 0;
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype length = EmojiText::emojiLength(text, position);
        if (length == 0) {
            ++position;
            continue;
        }
        result += text.sliced(copied, position - copied);
        appendImage(result, text.sliced(position, length), size);
        position += length;
        copied = position;
    }
    result += text.sliced(copied);
}

} // namespace

qsizetype EmojiText::emojiLength(QStringView text, qsizetype position)
{
    Cursor cursor(text, position);
    const char32_t first = cursor.peek();
    // Nearly all of most texts.
    if (first < firstEmojiCharacter && !isKeycapBase(first))
        return 0;
    if (isKeycapBase(first))
        return keycapLength(cursor);
    if (contains(regionalIndicators, first))
        return flagLength(cursor);

    Presentation presentation = skipElement(cursor);
    if (presentation == Presentation::None)
        return 0;
    while (cursor.peek() == zeroWidthJoiner) {
        Cursor joined = cursor;
        joined.advance();
        if (skipElement(joined) == Presentation::None || joined.isFull())
            break;
        cursor = joined;
        presentation = Presentation::Emoji;
    }
    return presentation == Presentation::Emoji ? cursor.length() : 0;
}

QString EmojiText::replaceEmojisByImages(const QString &text, qreal height)
{
    const qreal usableHeight = height > 0 ? qMin(height, maximumImageHeight) : defaultImageHeight;
    const QString size = QString::number(qMax(1, qRound(usableHeight)));
    QString result;
    result.reserve(text.size());
    Markup::Reader reader(text);
    while (const auto piece = reader.next()) {
        // A picture inside of unended markup would end it, and could not be told from it afterwards.
        if (piece->kind == Markup::PieceKind::Text)
            appendWithImages(result, piece->source, size);
        else
            result += piece->source;
    }
    return result;
}

QString EmojiText::replaceImagesByEmojis(const QString &text)
{
    QString result;
    result.reserve(text.size());
    Markup::Reader reader(text);
    while (const auto piece = reader.next()) {
        const QString emoji = emojiOfImage(piece->isTag("img"_L1) ? piece->source : QStringView());
        if (emoji.isEmpty())
            result += piece->source;
        else
            result += emoji;
    }
    return result;
}

QString EmojiText::emojiOfImage(QStringView tagSource)
{
    const auto source = Markup::attribute(tagSource, "src"_L1);
    if (!source || !source->startsWith(imageUrlStart))
        return {};
    return emojiOfId(QStringView(*source).sliced(imageUrlStart.size()));
}

QString EmojiText::emojiOfId(QStringView id)
{
    constexpr qsizetype longestNumber = 6;
    QString result;
    int count = 0;
    for (const QStringView number : id.tokenize(u'-')) {
        bool ok = false;
        const uint codePoint = number.size() <= longestNumber ? number.toUInt(&ok, 16) : 0;
        if (!ok || codePoint == 0 || codePoint > QChar::LastValidCodePoint || QChar::isSurrogate(char32_t(codePoint))
            || ++count > maximumCodePoints)
            return {};
        result += QChar::fromUcs4(char32_t(codePoint));
    }
    // Our picture of anything else would be a way to smuggle text past a reader of the markup.
    return emojiLength(result, 0) == result.size() ? result : QString();
}
