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
    {"AElig"_L1, 0x00C6},   {"Aacute"_L1, 0x00C1},  {"Acirc"_L1, 0x00C2},    {"Agrave"_L1, 0x00C0},
    {"Alpha"_L1, 0x0391},   {"Aring"_L1, 0x00C5},   {"Atilde"_L1, 0x00C3},   {"Auml"_L1, 0x00C4},
    {"Beta"_L1, 0x0392},    {"Ccedil"_L1, 0x00C7},  {"Chi"_L1, 0x03A7},      {"Dagger"_L1, 0x2021},
    {"Delta"_L1, 0x0394},   {"ETH"_L1, 0x00D0},     {"Eacute"_L1, 0x00C9},   {"Ecirc"_L1, 0x00CA},
    {"Egrave"_L1, 0x00C8},  {"Epsilon"_L1, 0x0395}, {"Eta"_L1, 0x0397},      {"Euml"_L1, 0x00CB},
    {"Gamma"_L1, 0x0393},   {"Iacute"_L1, 0x00CD},  {"Icirc"_L1, 0x00CE},    {"Igrave"_L1, 0x00CC},
    {"Iota"_L1, 0x0399},    {"Iuml"_L1, 0x00CF},    {"Kappa"_L1, 0x039A},    {"Lambda"_L1, 0x039B},
    {"Mu"_L1, 0x039C},      {"Ntilde"_L1, 0x00D1},  {"Nu"_L1, 0x039D},       {"OElig"_L1, 0x0152},
    {"Oacute"_L1, 0x00D3},  {"Ocirc"_L1, 0x00D4},   {"Ograve"_L1, 0x00D2},   {"Omega"_L1, 0x03A9},
    {"Omicron"_L1, 0x039F}, {"Oslash"_L1, 0x00D8},  {"Otilde"_L1, 0x00D5},   {"Ouml"_L1, 0x00D6},
    {"Phi"_L1, 0x03A6},     {"Pi"_L1, 0x03A0},      {"Prime"_L1, 0x2033},    {"Psi"_L1, 0x03A8},
    {"Rho"_L1, 0x03A1},     {"Scaron"_L1, 0x0160},  {"Sigma"_L1, 0x03A3},    {"THORN"_L1, 0x00DE},
    {"Tau"_L1, 0x03A4},     {"Theta"_L1, 0x0398},   {"Uacute"_L1, 0x00DA},   {"Ucirc"_L1, 0x00DB},
    {"Ugrave"_L1, 0x00D9},  {"Upsilon"_L1, 0x03A5}, {"Uuml"_L1, 0x00DC},     {"Xi"_L1, 0x039E},
    {"Yacute"_L1, 0x00DD},  {"Yuml"_L1, 0x0178},    {"Zeta"_L1, 0x0396},     {"aacute"_L1, 0x00E1},
    {"acirc"_L1, 0x00E2},   {"acute"_L1, 0x00B4},   {"aelig"_L1, 0x00E6},    {"agrave"_L1, 0x00E0},
    {"alefsym"_L1, 0x2135}, {"alpha"_L1, 0x03B1},   {"amp"_L1, u'&'},        {"and"_L1, 0x2227},
    {"ang"_L1, 0x2220},     {"apos"_L1, u'\''},     {"aring"_L1, 0x00E5},    {"asymp"_L1, 0x2248},
    {"atilde"_L1, 0x00E3},  {"auml"_L1, 0x00E4},    {"bdquo"_L1, 0x201E},    {"beta"_L1, 0x03B2},
    {"brvbar"_L1, 0x00A6},  {"bull"_L1, 0x2022},    {"cap"_L1, 0x2229},      {"ccedil"_L1, 0x00E7},
    {"cedil"_L1, 0x00B8},   {"cent"_L1, 0x00A2},    {"chi"_L1, 0x03C7},      {"circ"_L1, 0x02C6},
    {"clubs"_L1, 0x2663},   {"cong"_L1, 0x2245},    {"copy"_L1, 0x00A9},     {"crarr"_L1, 0x21B5},
    {"cup"_L1, 0x222A},     {"curren"_L1, 0x00A4},  {"dArr"_L1, 0x21D3},     {"dagger"_L1, 0x2020},
    {"darr"_L1, 0x2193},    {"deg"_L1, 0x00B0},     {"delta"_L1, 0x03B4},    {"diams"_L1, 0x2666},
    {"divide"_L1, 0x00F7},  {"eacute"_L1, 0x00E9},  {"ecirc"_L1, 0x00EA},    {"egrave"_L1, 0x00E8},
    {"empty"_L1, 0x2205},   {"emsp"_L1, 0x2003},    {"ensp"_L1, 0x2002},     {"epsilon"_L1, 0x03B5},
    {"equiv"_L1, 0x2261},   {"eta"_L1, 0x03B7},     {"eth"_L1, 0x00F0},      {"euml"_L1, 0x00EB},
    {"euro"_L1, 0x20AC},    {"exist"_L1, 0x2203},   {"fnof"_L1, 0x0192},     {"forall"_L1, 0x2200},
    {"frac12"_L1, 0x00BD},  {"frac14"_L1, 0x00BC},  {"frac34"_L1, 0x00BE},   {"frasl"_L1, 0x2044},
    {"gamma"_L1, 0x03B3},   {"ge"_L1, 0x2265},      {"gt"_L1, u'>'},         {"hArr"_L1, 0x21D4},
    {"harr"_L1, 0x2194},    {"hearts"_L1, 0x2665},  {"hellip"_L1, 0x2026},   {"iacute"_L1, 0x00ED},
    {"icirc"_L1, 0x00EE},   {"iexcl"_L1, 0x00A1},   {"igrave"_L1, 0x00EC},   {"image"_L1, 0x2111},
    {"infin"_L1, 0x221E},   {"int"_L1, 0x222B},     {"iota"_L1, 0x03B9},     {"iquest"_L1, 0x00BF},
    {"isin"_L1, 0x2208},    {"iuml"_L1, 0x00EF},    {"kappa"_L1, 0x03BA},    {"lArr"_L1, 0x21D0},
    {"lambda"_L1, 0x03BB},  {"lang"_L1, 0x2329},    {"laquo"_L1, 0x00AB},    {"larr"_L1, 0x2190},
    {"lceil"_L1, 0x2308},   {"ldquo"_L1, 0x201C},   {"le"_L1, 0x2264},       {"lfloor"_L1, 0x230A},
    {"lowast"_L1, 0x2217},  {"loz"_L1, 0x25CA},     {"lrm"_L1, 0x200E},      {"lsaquo"_L1, 0x2039},
    {"lsquo"_L1, 0x2018},   {"lt"_L1, u'<'},        {"macr"_L1, 0x00AF},     {"mdash"_L1, 0x2014},
    {"micro"_L1, 0x00B5},   {"middot"_L1, 0x00B7},  {"minus"_L1, 0x2212},    {"mu"_L1, 0x03BC},
    {"nabla"_L1, 0x2207},   {"nbsp"_L1, 0x00A0},    {"ndash"_L1, 0x2013},    {"ne"_L1, 0x2260},
    {"ni"_L1, 0x220B},      {"not"_L1, 0x00AC},     {"notin"_L1, 0x2209},    {"nsub"_L1, 0x2284},
    {"ntilde"_L1, 0x00F1},  {"nu"_L1, 0x03BD},      {"oacute"_L1, 0x00F3},   {"ocirc"_L1, 0x00F4},
    {"oelig"_L1, 0x0153},   {"ograve"_L1, 0x00F2},  {"oline"_L1, 0x203E},    {"omega"_L1, 0x03C9},
    {"omicron"_L1, 0x03BF}, {"oplus"_L1, 0x2295},   {"or"_L1, 0x2228},       {"ordf"_L1, 0x00AA},
    {"ordm"_L1, 0x00BA},    {"oslash"_L1, 0x00F8},  {"otilde"_L1, 0x00F5},   {"otimes"_L1, 0x2297},
    {"ouml"_L1, 0x00F6},    {"para"_L1, 0x00B6},    {"part"_L1, 0x2202},     {"permil"_L1, 0x2030},
    {"perp"_L1, 0x22A5},    {"phi"_L1, 0x03C6},     {"pi"_L1, 0x03C0},       {"piv"_L1, 0x03D6},
    {"plusmn"_L1, 0x00B1},  {"pound"_L1, 0x00A3},   {"prime"_L1, 0x2032},    {"prod"_L1, 0x220F},
    {"prop"_L1, 0x221D},    {"psi"_L1, 0x03C8},     {"quot"_L1, u'"'},       {"rArr"_L1, 0x21D2},
    {"radic"_L1, 0x221A},   {"rang"_L1, 0x232A},    {"raquo"_L1, 0x00BB},    {"rarr"_L1, 0x2192},
    {"rceil"_L1, 0x2309},   {"rdquo"_L1, 0x201D},   {"real"_L1, 0x211C},     {"reg"_L1, 0x00AE},
    {"rfloor"_L1, 0x230B},  {"rho"_L1, 0x03C1},     {"rlm"_L1, 0x200F},      {"rsaquo"_L1, 0x203A},
    {"rsquo"_L1, 0x2019},   {"sbquo"_L1, 0x201A},   {"scaron"_L1, 0x0161},   {"sdot"_L1, 0x22C5},
    {"sect"_L1, 0x00A7},    {"shy"_L1, 0x00AD},     {"sigma"_L1, 0x03C3},    {"sigmaf"_L1, 0x03C2},
    {"sim"_L1, 0x223C},     {"spades"_L1, 0x2660},  {"sub"_L1, 0x2282},      {"sube"_L1, 0x2286},
    {"sum"_L1, 0x2211},     {"sup"_L1, 0x2283},     {"sup1"_L1, 0x00B9},     {"sup2"_L1, 0x00B2},
    {"sup3"_L1, 0x00B3},    {"supe"_L1, 0x2287},    {"szlig"_L1, 0x00DF},    {"tau"_L1, 0x03C4},
    {"there4"_L1, 0x2234},  {"theta"_L1, 0x03B8},   {"thetasym"_L1, 0x03D1}, {"thinsp"_L1, 0x2009},
    {"thorn"_L1, 0x00FE},   {"tilde"_L1, 0x02DC},   {"times"_L1, 0x00D7},    {"trade"_L1, 0x2122},
    {"uArr"_L1, 0x21D1},    {"uacute"_L1, 0x00FA},  {"uarr"_L1, 0x2191},     {"ucirc"_L1, 0x00FB},
    {"ugrave"_L1, 0x00F9},  {"uml"_L1, 0x00A8},     {"upsih"_L1, 0x03D2},    {"upsilon"_L1, 0x03C5},
    {"uuml"_L1, 0x00FC},    {"weierp"_L1, 0x2118},  {"xi"_L1, 0x03BE},       {"yacute"_L1, 0x00FD},
    {"yen"_L1, 0x00A5},     {"yuml"_L1, 0x00FF},    {"zeta"_L1, 0x03B6},     {"zwj"_L1, 0x200D},
    {"zwnj"_L1, 0x200C},
};

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
