#include "UntrustedHtml.h"

#include "FlatHtmlWriter.h"
#include "HtmlStyle.h"

#include <EmojiText.h>
#include <Markup.h>

#include <QHash>
#include <QList>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum class Layout {
    Inline,
    Block,
    Paragraph,
    Heading,
    List,
    Item,
    Term,
    Cell,
    Row,
    Break, // void, as are the following
    Rule,
    Picture,
    Nothing,
};

enum class Look { Plain, Bold, Italic, Underlined, KeptBlanks, Hidden, Link };

// Kinds of elements, and the names of those of a kind. What is not here is inline, and looks like what is around it.
struct ElementType
{
    QLatin1StringView names;
    Layout layout = Layout::Inline;
    Look look = Look::Plain;
    int headingLevel = 0;
};

constexpr ElementType elementTypes[] = {
    {"a"_L1, Layout::Inline, Look::Link},
    {"address"_L1, Layout::Block, Look::Italic},
    {"area base col embed input link meta param source track wbr"_L1, Layout::Nothing},
    {"article aside blockquote body center details dialog div dl fieldset figcaption figure footer form head "
     "header hgroup html main nav search section summary table tbody tfoot thead"_L1,
     Layout::Block},
    {"b strong"_L1, Layout::Inline, Look::Bold},
    {"br"_L1, Layout::Break},
    {"caption td"_L1, Layout::Cell},
    {"cite dfn em i var"_L1, Layout::Inline, Look::Italic},
    {"dd dt"_L1, Layout::Term},
    {"dir menu ol ul"_L1, Layout::List},
    {"h1"_L1, Layout::Heading, Look::Plain, 1},
    {"h2"_L1, Layout::Heading, Look::Plain, 2},
    {"h3"_L1, Layout::Heading, Look::Plain, 3},
    {"h4 h5 h6"_L1, Layout::Block, Look::Bold},
    {"hr"_L1, Layout::Rule},
    {"img"_L1, Layout::Picture},
    {"ins u"_L1, Layout::Inline, Look::Underlined},
    {"li"_L1, Layout::Item},
    {"p"_L1, Layout::Paragraph},
    {"pre"_L1, Layout::Block, Look::KeptBlanks},
    {"th"_L1, Layout::Cell, Look::Bold},
    {"title"_L1, Layout::Block, Look::Hidden},
    {"tr"_L1, Layout::Row},
};

constexpr bool isBlock(Layout layout)
{
    return layout > Layout::Inline && layout < Layout::Break;
}

// What ends where an element of the given layout begins, if it is the innermost block: authors may leave out its end.
constexpr bool isEndedBy(Layout open, Layout next)
{
    switch (open) {
    case Layout::Paragraph:
        return isBlock(next);
    case Layout::Item:
    case Layout::Term:
        return next == open;
    case Layout::Cell:
        return next == Layout::Cell || next == Layout::Row;
    case Layout::Row:
        return next == Layout::Row;
    default:
        return false;
    }
}

const ElementType &elementType(const QString &name)
{
    static constexpr ElementType unknown = {};
    static const auto types = [] {
        QHash<QString, const ElementType *> byName;
        for (const ElementType &type : elementTypes) {
            for (const QLatin1StringView single : type.names.tokenize(u' '))
                byName.insert(single, &type);
        }
        return byName;
    }();
    return *types.value(name, &unknown);
}

HtmlStyle styleOf(Look look)
{
    HtmlStyle style;
    switch (look) {
    case Look::Bold:
        style.bold = true;
        break;
    case Look::Italic:
        style.italic = true;
        break;
    case Look::Underlined:
        style.underline = true;
        break;
    case Look::KeptBlanks:
        style.keepsBlanks = true;
        break;
    case Look::Hidden:
        style.hidden = true;
        break;
    case Look::Plain:
    case Look::Link:
        break;
    }
    return style;
}

bool isMarkupSpace(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f' || c == u'\v';
}

bool isControl(QChar c)
{
    constexpr char16_t lastControl = 0x1F;
    return c <= QChar(lastControl) && !isMarkupSpace(c);
}

bool isInvisibleInLink(QChar c)
{
    constexpr char16_t lastControl = 0x1F;
    constexpr char16_t deleteCharacter = 0x7F;
    return c <= QChar(lastControl) || c == QChar(deleteCharacter);
}

// What would end the attribute or the tag where the link is written into HTML without care.
bool isUnsafeInLink(QChar c)
{
    return c == u'"' || c == u'<' || c == u'>' || c == u'`' || c == QChar(TextRunGuard::breakOpportunity) || c.isSpace()
        || UntrustedText::isStructure(c);
}

//! The target as browsers read it, or an empty text when it names none of \a schemes.
QString safeTarget(QString target, const QStringList &schemes)
{
    target.removeIf(isInvisibleInLink);
    target = std::move(target).trimmed();
    const qsizetype colon = target.indexOf(u':');
    if (colon < 1 || !schemes.contains(target.first(colon).toLower()))
        return {};
    if (std::none_of(target.cbegin(), target.cend(), isUnsafeInLink))
        return target;
    QString encoded;
    encoded.reserve(target.size());
    for (const QChar c : std::as_const(target)) {
        if (isUnsafeInLink(c))
            encoded += QLatin1StringView(QUrl::toPercentEncoding(QString(c)));
        else
            encoded += c;
    }
    return encoded;
}

class Reducer
{
public:
    Reducer(const QString &html, const QStringList &linkSchemes)
        : m_html(html)
        , m_linkSchemes(linkSchemes)
        , m_writer(html.size())
    {
    }

    QString reduced()
    {
        Markup::Reader reader(m_html);
        while (const auto piece = reader.next()) {
            switch (piece->kind) {
            case Markup::PieceKind::Text:
            case Markup::PieceKind::Unended:
                text(Markup::decodeReferences(piece->source));
                break;
            case Markup::PieceKind::Tag:
                tag(*piece);
                break;
            case Markup::PieceKind::RawText:
                if (m_inStyleSheet)
                    m_sheet.read(piece->source);
                break;
            case Markup::PieceKind::Other:
                break;
            }
        }
        endBlock();
        return m_writer.take();
    }

private:
    // How text looks at one place.
    struct State
    {
        FlatHtmlWriter::Format format;
        int headingLevel = 0;
        bool keepsBlanks = false;
        bool hidden = false;
    };

    struct Element
    {
        int name = 0;
        Layout layout = Layout::Inline;
        HtmlStyle style;
        int link = -1;
        int headingLevel = 0;
        State state;
        // Written though nothing is in it.
        bool showsEmpty = false;
        // A paragraph, heading or item without attributes: how the compose area itself writes them.
        bool isPlain = false;
        int blocksBefore = 0;
    };

    struct Name
    {
        QString text;
        const ElementType *type = nullptr;
        int openElements = 0;
    };

    const State &state() const { return m_elements.isEmpty() ? m_outside : m_elements.constLast().state; }

    QString linkTarget(const FlatHtmlWriter::Format &format) const
    {
        return format.link >= 0 ? m_links.at(format.link) : QString();
    }

    int nameNumber(QStringView name)
    {
        const QString lowerCase = name.toString().toLower();
        auto found = m_nameNumbers.find(lowerCase);
        if (found == m_nameNumbers.end()) {
            found = m_nameNumbers.insert(lowerCase, int(m_names.size()));
            m_names.append({lowerCase, &elementType(lowerCase), 0});
        }
        return *found;
    }

    void tag(const Markup::Piece &piece)
    {
        const int name = nameNumber(piece.name);
        const ElementType &type = *m_names.at(name).type;
        m_inStyleSheet = !piece.closing && piece.isTag("style"_L1);
        switch (type.layout) {
        case Layout::Break:
            lineBreak(piece);
            break;
        case Layout::Rule:
            endBlock();
            break;
        case Layout::Picture:
            text(EmojiText::emojiOfImage(piece.source));
            break;
        case Layout::Nothing:
            break;
        default:
            if (piece.closing)
                close(name, type);
            else
                open(name, type, piece);
        }
    }

    void open(int name, const ElementType &type, const Markup::Piece &piece)
    {
        if (isBlock(type.layout)) {
            while (!m_blocks.isEmpty() && isEndedBy(m_elements.at(m_blocks.constLast()).layout, type.layout))
                closeFrom(m_blocks.constLast());
            endBlock();
            m_skipsNewline = type.look == Look::KeptBlanks;
        }
        Element element;
        element.name = name;
        element.layout = type.layout;
        element.headingLevel = type.headingLevel;
        element.style = styleOf(type.look);
        element.blocksBefore = m_writer.blockCount();
        constexpr qsizetype brackets = 2;
        const bool hasAttributes = piece.source.size() > piece.name.size() + brackets;
        if (hasAttributes || !m_sheet.isEmpty())
            readAttributes(element, type, piece.source);
        element.isPlain = !hasAttributes
            && (type.layout == Layout::Paragraph || type.layout == Layout::Heading || type.layout == Layout::Item);
        element.showsEmpty = element.isPlain || type.layout == Layout::Item;
        element.state = stateIn(state(), element);

        if (isBlock(type.layout))
            m_blocks.append(int(m_elements.size()));
        m_elements.append(element);
        ++m_names[name].openElements;
        if (type.layout == Layout::Item)
            m_itemExpected = true;
        else if (type.layout == Layout::List)
            m_itemExpected = false;
    }

    void readAttributes(Element &element, const ElementType &type, QStringView source)
    {
        if (!m_sheet.isEmpty()) {
            const QString classes = Markup::attribute(source, "class"_L1).value_or(QString());
            element.style.merge(m_sheet.style(m_names.at(element.name).text, classes));
        }
        if (const auto declarations = Markup::attribute(source, "style"_L1))
            element.style.merge(HtmlStyle::fromDeclarations(*declarations));
        if (type.look == Look::Link) {
            const QString target = safeTarget(Markup::attribute(source, "href"_L1).value_or(QString()), m_linkSchemes);
            if (!target.isEmpty()) {
                element.link = int(m_links.size());
                m_links.append(target);
            }
        }
    }

    static State stateIn(const State &outer, const Element &element)
    {
        State state = outer;
        state.format.bold = element.style.bold.value_or(outer.format.bold);
        state.format.italic = element.style.italic.value_or(outer.format.italic);
        state.format.underline = element.style.underline.value_or(outer.format.underline);
        state.keepsBlanks = element.style.keepsBlanks.value_or(outer.keepsBlanks);
        state.hidden = outer.hidden || element.style.hidden.value_or(false);
        if (element.link >= 0)
            state.format.link = element.link;
        if (element.headingLevel > 0)
            state.headingLevel = element.headingLevel;
        return state;
    }

    void close(int name, const ElementType &type)
    {
        if (m_names.at(name).openElements == 0) {
            if (isBlock(type.layout))
                endBlock();
            return;
        }
        qsizetype index = m_elements.size() - 1;
        while (m_elements.at(index).name != name)
            --index;
        // Ends of inline elements in the wrong order leave alone what is open inside. Looking after many elements at
        // each end would take quadratic time.
        constexpr qsizetype mostElementsInside = 8;
        if (!isBlock(type.layout) && m_elements.size() - index <= mostElementsInside)
            remove(index);
        else
            closeFrom(index);
    }

    void remove(qsizetype index)
    {
        --m_names[m_elements.at(index).name].openElements;
        m_elements.removeAt(index);
        for (qsizetype i = index; i < m_elements.size(); ++i)
            m_elements[i].state = stateIn(i > 0 ? m_elements.at(i - 1).state : m_outside, m_elements.at(i));
        for (qsizetype i = m_blocks.size() - 1; i >= 0 && m_blocks.at(i) > index; --i)
            --m_blocks[i];
    }

    void closeFrom(qsizetype index)
    {
        while (m_elements.size() > index) {
            const Element &element = m_elements.constLast();
            if (isBlock(element.layout)) {
                endBlock();
                if (element.showsEmpty && !element.state.hidden && m_writer.blockCount() == element.blocksBefore)
                    emptyBlock();
                if (element.layout == Layout::Item)
                    m_itemExpected = false;
                m_blocks.removeLast();
            }
            --m_names[element.name].openElements;
            m_elements.removeLast();
        }
    }

    void text(const QString &text)
    {
        const State &state = this->state();
        if (state.hidden)
            return;
        for (const QChar c : text) {
            if (c == QChar::LineSeparator) {
                writtenLineBreak();
            } else if (c == QChar::ParagraphSeparator || (state.keepsBlanks && c == u'\n')) {
                if (!m_skipsNewline)
                    newParagraph();
            } else if (UntrustedText::isStructure(c) || isControl(c) || (state.keepsBlanks && c == u'\r')) {
                continue;
            } else if (!state.keepsBlanks && isMarkupSpace(c)) {
                m_spaceExpected = m_spaceExpected || !m_atLineStart;
                m_spaceFormat = state.format;
                continue;
            } else {
                writeExpected();
                character(c, state.format);
            }
            m_skipsNewline = false;
        }
    }

    void character(QChar c, const FlatHtmlWriter::Format &format)
    {
        beginBlock();
        m_writer.character(c, format, linkTarget(format));
        m_atLineStart = false;
    }

    void beginBlock()
    {
        if (m_writer.isBlockOpen())
            return;
        m_writer.setNextBlock({state().headingLevel, m_itemExpected});
        m_itemExpected = false;
    }

    void writeExpected()
    {
        for (; m_breaksExpected > 0; --m_breaksExpected)
            writtenBreak();
        if (m_spaceExpected)
            character(u' ', m_spaceFormat);
        m_spaceExpected = false;
    }

    void lineBreak(const Markup::Piece &piece)
    {
        if (state().hidden)
            return;
        // The compose area's own HTML, where a line break is a character of the text.
        const bool isCharacter =
            !m_blocks.isEmpty() && m_elements.at(m_blocks.constLast()).isPlain && piece.source == "<br/>"_L1;
        if (isCharacter)
            return writtenLineBreak();
        ++m_breaksExpected;
        m_spaceExpected = false;
        m_atLineStart = true;
    }

    void writtenLineBreak()
    {
        writeExpected();
        writtenBreak();
    }

    void writtenBreak()
    {
        beginBlock();
        const FlatHtmlWriter::Format &format = state().format;
        m_writer.lineBreak(format, linkTarget(format));
        m_atLineStart = true;
    }

    void newParagraph()
    {
        if (m_writer.isBlockOpen() || m_breaksExpected > 0)
            endBlock();
        else
            emptyBlock();
    }

    void endBlock()
    {
        // The last break of a block only ends its last line; alone it makes an empty one.
        const bool isAlone = m_breaksExpected == 1 && !m_writer.isBlockOpen();
        for (; m_breaksExpected > 1; --m_breaksExpected)
            writtenBreak();
        m_breaksExpected = 0;
        if (isAlone)
            emptyBlock();
        m_writer.endBlock();
        m_spaceExpected = false;
        m_atLineStart = true;
    }

    void emptyBlock()
    {
        m_writer.setNextBlock({0, m_itemExpected});
        m_writer.emptyBlock();
        m_itemExpected = false;
    }

    const QString &m_html;
    const QStringList &m_linkSchemes;
    FlatHtmlWriter m_writer;
    HtmlStyleSheet m_sheet;
    QHash<QString, int> m_nameNumbers;
    QList<Name> m_names;
    QList<Element> m_elements;
    QList<int> m_blocks; // which of the elements are blocks
    QList<QString> m_links;
    const State m_outside;
    FlatHtmlWriter::Format m_spaceFormat;
    int m_breaksExpected = 0;
    bool m_spaceExpected = false;
    bool m_atLineStart = true;
    bool m_itemExpected = false;
    bool m_skipsNewline = false;
    bool m_inStyleSheet = false;
};

} // namespace

QString UntrustedHtml::reduced(const QString &html, const QStringList &linkSchemes)
{
    return Reducer(html, linkSchemes).reduced();
}
