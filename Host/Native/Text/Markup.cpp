#include "Markup.h"

#include <QChar>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

bool isAsciiLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isMarkupSpace(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

bool isNameEnd(QChar c)
{
    return isMarkupSpace(c) || c == u'/' || c == u'>';
}

bool isRawElement(QStringView name)
{
    return name.compare("style"_L1, Qt::CaseInsensitive) == 0 || name.compare("script"_L1, Qt::CaseInsensitive) == 0;
}

struct NamedReference
{
    QLatin1StringView name;
    char16_t character;
};

// Sorted by name, upper case first, as the characters' codes are.
constexpr NamedReference namedReferences[] = {
    {"AElig"_L1, 0x00C6},  {"Aacute"_L1, 0x00C1}, {"Acirc"_L1, 0x00C2},  {"Agrave"_L1, 0x00C0}, {"Aring"_L1, 0x00C5},
    {"Atilde"_L1, 0x00C3}, {"Auml"_L1, 0x00C4},   {"Ccedil"_L1, 0x00C7}, {"Eacute"_L1, 0x00C9}, {"Ecirc"_L1, 0x00CA},
    {"Egrave"_L1, 0x00C8}, {"Euml"_L1, 0x00CB},   {"Iacute"_L1, 0x00CD}, {"Ntilde"_L1, 0x00D1}, {"Oacute"_L1, 0x00D3},
    {"Oslash"_L1, 0x00D8}, {"Ouml"_L1, 0x00D6},   {"Uacute"_L1, 0x00DA}, {"Uuml"_L1, 0x00DC},   {"aacute"_L1, 0x00E1},
    {"acirc"_L1, 0x00E2},  {"aelig"_L1, 0x00E6},  {"agrave"_L1, 0x00E0}, {"amp"_L1, u'&'},      {"apos"_L1, u'\''},
    {"aring"_L1, 0x00E5},  {"atilde"_L1, 0x00E3}, {"auml"_L1, 0x00E4},   {"bull"_L1, 0x2022},   {"ccedil"_L1, 0x00E7},
    {"cent"_L1, 0x00A2},   {"copy"_L1, 0x00A9},   {"deg"_L1, 0x00B0},    {"eacute"_L1, 0x00E9}, {"ecirc"_L1, 0x00EA},
    {"egrave"_L1, 0x00E8}, {"euml"_L1, 0x00EB},   {"euro"_L1, 0x20AC},   {"gt"_L1, u'>'},       {"hellip"_L1, 0x2026},
    {"iacute"_L1, 0x00ED}, {"icirc"_L1, 0x00EE},  {"iexcl"_L1, 0x00A1},  {"iquest"_L1, 0x00BF}, {"iuml"_L1, 0x00EF},
    {"laquo"_L1, 0x00AB},  {"larr"_L1, 0x2190},   {"ldquo"_L1, 0x201C},  {"lsquo"_L1, 0x2018},  {"lt"_L1, u'<'},
    {"mdash"_L1, 0x2014},  {"middot"_L1, 0x00B7}, {"nbsp"_L1, 0x00A0},   {"ndash"_L1, 0x2013},  {"ntilde"_L1, 0x00F1},
    {"oacute"_L1, 0x00F3}, {"ocirc"_L1, 0x00F4},  {"oslash"_L1, 0x00F8}, {"ouml"_L1, 0x00F6},   {"para"_L1, 0x00B6},
    {"plusmn"_L1, 0x00B1}, {"pound"_L1, 0x00A3},  {"quot"_L1, u'"'},     {"raquo"_L1, 0x00BB},  {"rarr"_L1, 0x2192},
    {"rdquo"_L1, 0x201D},  {"reg"_L1, 0x00AE},    {"rsquo"_L1, 0x2019},  {"sect"_L1, 0x00A7},   {"shy"_L1, 0x00AD},
    {"szlig"_L1, 0x00DF},  {"times"_L1, 0x00D7},  {"trade"_L1, 0x2122},  {"uacute"_L1, 0x00FA}, {"ucirc"_L1, 0x00FB},
    {"ugrave"_L1, 0x00F9}, {"uuml"_L1, 0x00FC},   {"yen"_L1, 0x00A5},
};

// Longer than any name above and than any number that can stand for a character.
constexpr qsizetype longestReference = 10;

void appendCodePoint(QString &result, uint codePoint)
{
    const bool isCharacter =
        codePoint != 0 && codePoint <= QChar::LastValidCodePoint && !QChar::isSurrogate(char32_t(codePoint));
    result += QChar::fromUcs4(isCharacter ? char32_t(codePoint) : char32_t(QChar::ReplacementCharacter));
}

//! Decodes what stands between "&" and ";"; false when it is no reference.
bool appendReference(QString &result, QStringView body)
{
    if (body.startsWith(u'#')) {
        const bool hexadecimal = body.size() > 1 && (body.at(1) == u'x' || body.at(1) == u'X');
        const QStringView digits = body.sliced(hexadecimal ? 2 : 1);
        // The conversion below would also take signs and blanks.
        if (!std::all_of(digits.begin(), digits.end(), [](QChar c) { return isAsciiLetter(c) || c.isDigit(); }))
            return false;
        bool ok = false;
        const uint codePoint = digits.toUInt(&ok, hexadecimal ? 16 : 10);
        if (!ok)
            return false;
        appendCodePoint(result, codePoint);
        return true;
    }
    const auto found = std::lower_bound(std::begin(namedReferences), std::end(namedReferences), body,
                                        [](const NamedReference &row, QStringView name) { return row.name < name; });
    if (found == std::end(namedReferences) || found->name != body)
        return false;
    result += QChar(found->character);
    return true;
}

} // namespace

bool Markup::Piece::isTag(QLatin1StringView tagName) const
{
    return kind == PieceKind::Tag && name.compare(tagName, Qt::CaseInsensitive) == 0;
}

Markup::Reader::Reader(QStringView text)
    : m_text(text)
{
}

bool Markup::Reader::startsMarkup(qsizetype position) const
{
    if (position + 1 >= m_text.size())
        return false;
    const QChar next = m_text.at(position + 1);
    if (next == u'/')
        return position + 2 < m_text.size() && isAsciiLetter(m_text.at(position + 2));
    return isAsciiLetter(next) || next == u'!' || next == u'?';
}

qsizetype Markup::Reader::tagEnd(qsizetype start) const
{
    // A quotation mark guards a ">" only as the first character of a value.
    bool valueExpected = false;
    for (qsizetype i = start + 1; i < m_text.size(); ++i) {
        const QChar c = m_text.at(i);
        if (c == u'>')
            return i + 1;
        if (valueExpected && (c == u'"' || c == u'\'')) {
            i = m_text.indexOf(c, i + 1);
            if (i < 0)
                return -1;
        }
        valueExpected = c == u'=' || (valueExpected && isMarkupSpace(c));
    }
    return -1;
}

qsizetype Markup::Reader::markupEnd(qsizetype start) const
{
    constexpr auto commentStart = "<!--"_L1;
    constexpr auto commentEnd = "-->"_L1;
    if (m_text.sliced(start).startsWith(commentStart)) {
        const qsizetype end = m_text.indexOf(commentEnd, start + commentStart.size());
        return end < 0 ? -1 : end + commentEnd.size();
    }
    const QChar next = m_text.at(start + 1);
    if (next == u'!' || next == u'?')
        return m_text.indexOf(u'>', start) + 1;
    return tagEnd(start);
}

Markup::Piece Markup::Reader::makeTag(QStringView source) const
{
    Piece piece{PieceKind::Tag, source, {}, source.at(1) == u'/'};
    const qsizetype nameStart = piece.closing ? 2 : 1;
    qsizetype nameEnd = nameStart;
    while (nameEnd < source.size() && !isNameEnd(source.at(nameEnd)))
        ++nameEnd;
    piece.name = source.sliced(nameStart, nameEnd - nameStart);
    return piece;
}

std::optional<Markup::Piece> Markup::Reader::next()
{
    const qsizetype start = m_position;
    if (start >= m_text.size())
        return std::nullopt;

    if (!m_rawElement.isEmpty()) {
        QString closingTag = "</"_L1;
        closingTag += m_rawElement;
        m_rawElement = {};
        const qsizetype end = m_text.indexOf(closingTag, start, Qt::CaseInsensitive);
        m_position = end < 0 ? m_text.size() : end;
        if (m_position > start)
            return Piece{PieceKind::RawText, m_text.sliced(start, m_position - start), {}, false};
    }

    if (m_text.at(start) == u'<' && startsMarkup(start)) {
        const qsizetype end = markupEnd(start);
        if (end > 0) {
            m_position = end;
            const QStringView source = m_text.sliced(start, end - start);
            const QChar next = source.at(1);
            if (next == u'!' || next == u'?')
                return Piece{PieceKind::Other, source, {}, false};
            const Piece tag = makeTag(source);
            if (!tag.closing && isRawElement(tag.name))
                m_rawElement = tag.name;
            return tag;
        }
        // Looking for the end again from each later "<" would take quadratic time.
        m_position = m_text.size();
        return Piece{PieceKind::Unended, m_text.sliced(start), {}, false};
    }

    qsizetype end = m_text.indexOf(u'<', start + 1);
    while (end >= 0 && !startsMarkup(end))
        end = m_text.indexOf(u'<', end + 1);
    m_position = end < 0 ? m_text.size() : end;
    return Piece{PieceKind::Text, m_text.sliced(start, m_position - start), {}, false};
}

std::optional<QString> Markup::attribute(QStringView tagSource, QLatin1StringView attributeName)
{
    const qsizetype size = tagSource.size();
    const auto skipSpaces = [&](qsizetype i) {
        while (i < size && (isMarkupSpace(tagSource.at(i)) || tagSource.at(i) == u'/'))
            ++i;
        return i;
    };

    qsizetype i = 1;
    while (i < size && !isMarkupSpace(tagSource.at(i)) && tagSource.at(i) != u'>')
        ++i;
    while ((i = skipSpaces(i)) < size && tagSource.at(i) != u'>') {
        const qsizetype nameStart = i;
        while (i < size && !isNameEnd(tagSource.at(i)) && (tagSource.at(i) != u'=' || i == nameStart))
            ++i;
        const QStringView name = tagSource.sliced(nameStart, i - nameStart);
        qsizetype valueStart = i;
        while (valueStart < size && isMarkupSpace(tagSource.at(valueStart)))
            ++valueStart;
        QStringView value;
        if (valueStart < size && tagSource.at(valueStart) == u'=') {
            ++valueStart;
            while (valueStart < size && isMarkupSpace(tagSource.at(valueStart)))
                ++valueStart;
            const QChar quote = valueStart < size ? tagSource.at(valueStart) : QChar();
            if (quote == u'"' || quote == u'\'') {
                const qsizetype valueEnd = tagSource.indexOf(quote, valueStart + 1);
                if (valueEnd < 0)
                    return std::nullopt;
                value = tagSource.sliced(valueStart + 1, valueEnd - valueStart - 1);
                i = valueEnd + 1;
            } else {
                i = valueStart;
                while (i < size && !isMarkupSpace(tagSource.at(i)) && tagSource.at(i) != u'>')
                    ++i;
                value = tagSource.sliced(valueStart, i - valueStart);
            }
        }
        if (name.compare(attributeName, Qt::CaseInsensitive) == 0)
            return decodeReferences(value);
    }
    return std::nullopt;
}

QString Markup::decodeReferences(QStringView text)
{
    QString result;
    result.reserve(text.size());
    qsizetype copied = 0;
    for (qsizetype start = text.indexOf(u'&'); start >= 0; start = text.indexOf(u'&', start + 1)) {
        const QStringView candidate = text.sliced(start + 1, qMin(longestReference, text.size() - start - 1));
        const qsizetype length = candidate.indexOf(u';');
        if (length < 1)
            continue;
        QString decoded;
        if (!appendReference(decoded, candidate.first(length)))
            continue;
        result += text.sliced(copied, start - copied);
        result += decoded;
        copied = start + length + 2;
    }
    result += text.sliced(copied);
    return result;
}

bool Markup::hasTags(QStringView text)
{
    Reader reader(text);
    while (const auto piece = reader.next()) {
        if (piece->kind == PieceKind::Tag)
            return true;
    }
    return false;
}
