#include "Markup.h"

#include <QChar>
#include <QHash>

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

// Names of characters, in the order of their codes. A number is the code of the name behind it; without one a character
// follows that of the name before.
constexpr char namedReferences[] =
    "0022 quot 0026 amp apos 003C lt 003E gt 00A0 nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo "
    "not shy reg macr deg plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest "
    "Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde "
    "Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc "
    "atilde auml aring aelig ccedil egrave eacute ecirc euml igrave iacute icirc iuml eth ntilde ograve oacute ocirc "
    "otilde ouml divide oslash ugrave uacute ucirc uuml yacute thorn yuml 0152 OElig oelig 0160 Scaron scaron 0178 "
    "Yuml 0192 fnof 02C6 circ 02DC tilde 0391 Alpha Beta Gamma Delta Epsilon Zeta Eta Theta Iota Kappa Lambda Mu Nu "
    "Xi Omicron Pi Rho 03A3 Sigma Tau Upsilon Phi Chi Psi Omega 03B1 alpha beta gamma delta epsilon zeta eta theta "
    "iota kappa lambda mu nu xi omicron pi rho sigmaf sigma tau upsilon phi chi psi omega 03D1 thetasym upsih 03D6 "
    "piv 2002 ensp emsp 2009 thinsp 200C zwnj zwj lrm rlm 2013 ndash mdash 2018 lsquo rsquo sbquo 201C ldquo rdquo "
    "bdquo 2020 dagger Dagger bull 2026 hellip 2030 permil 2032 prime Prime 2039 lsaquo rsaquo 203E oline 2044 frasl "
    "20AC euro 2111 image 2118 weierp 211C real 2122 trade 2135 alefsym 2190 larr uarr rarr darr harr 21B5 crarr 21D0 "
    "lArr uArr rArr dArr hArr 2200 forall 2202 part exist 2205 empty 2207 nabla isin notin 220B ni 220F prod 2211 sum "
    "minus 2217 lowast 221A radic 221D prop infin 2220 ang 2227 and or cap cup int 2234 there4 223C sim 2245 cong "
    "2248 asymp 2260 ne equiv 2264 le ge 2282 sub sup nsub 2286 sube supe 2295 oplus 2297 otimes 22A5 perp 22C5 sdot "
    "2308 lceil rceil lfloor rfloor 2329 lang rang 25CA loz 2660 spades 2663 clubs 2665 hearts diams";

QHash<QLatin1StringView, char16_t> readNamedReferences()
{
    QHash<QLatin1StringView, char16_t> characters;
    char16_t next = 0;
    for (const QLatin1StringView word : QLatin1StringView(namedReferences).tokenize(u' ')) {
        if (QChar(word.front()).isDigit())
            next = char16_t(word.toUShort(nullptr, 16));
        else
            characters.insert(word, next++);
    }
    return characters;
}

// Longer than any name above and than any number that can stand for a character.
constexpr qsizetype longestReference = 10;

// What the numbers 0x80 to 0x9F, which are control characters, mean to the authors of HTML; 0 where nothing.
constexpr uint firstWindowsCharacter = 0x80;
constexpr char16_t windowsCharacters[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

void appendCodePoint(QString &result, uint codePoint)
{
    if (codePoint >= firstWindowsCharacter && codePoint - firstWindowsCharacter < std::size(windowsCharacters)) {
        if (const char16_t character = windowsCharacters[codePoint - firstWindowsCharacter])
            codePoint = character;
    }
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
    static const QHash<QLatin1StringView, char16_t> characters = readNamedReferences();
    const QByteArray name = body.toLatin1();
    const auto found = characters.constFind(QLatin1StringView(name));
    if (found == characters.constEnd())
        return false;
    result += QChar(*found);
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
        if (candidate.isEmpty() || !(isAsciiLetter(candidate.front()) || candidate.front() == u'#'))
            continue;
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
