#pragma once

#include <QString>
#include <QStringView>

#include <optional>

#include "korvuui_export.h"

//! A reader of HTML text from anywhere: it cuts the text into pieces, never fails, and takes time in proportion to the
//! length of the text whatever the text holds. It knows nothing of the meaning of tags.
namespace Markup {

enum class PieceKind {
    Text,    //!< text between tags, character references not yet decoded
    Tag,     //!< an opening or a closing tag
    RawText, //!< the contents of a style or script element
    Other,   //!< a comment, a document type, a processing instruction
    Unended, //!< markup that never ends, and all that follows it: a reader sees it as text
};

struct KORVUUI_EXPORT Piece
{
    PieceKind kind = PieceKind::Text;
    QStringView source; //!< the piece as it stands in the text; all pieces in order give the text again
    QStringView name;   //!< of a tag, as written
    bool closing = false;

    bool isTag(QLatin1StringView tagName) const;
};

class KORVUUI_EXPORT Reader
{
public:
    //! \a text must outlive the reader and its pieces.
    explicit Reader(QStringView text);

    //! The next piece, or nothing at the end.
    std::optional<Piece> next();

private:
    bool startsMarkup(qsizetype position) const;
    qsizetype markupEnd(qsizetype start) const;
    qsizetype tagEnd(qsizetype start) const;
    Piece makeTag(QStringView source) const;

    QStringView m_text;
    qsizetype m_position = 0;
    QStringView m_rawElement;
};

//! The value of an attribute of a tag, character references decoded; nothing when the tag lacks it.
KORVUUI_EXPORT std::optional<QString> attribute(QStringView tagSource, QLatin1StringView attributeName);

//! \a text with its character references ("&amp;", "&#128512;", "&#x1f600;") decoded; unknown ones stay.
KORVUUI_EXPORT QString decodeReferences(QStringView text);

//! True when \a text holds at least one tag.
KORVUUI_EXPORT bool hasTags(QStringView text);

} // namespace Markup
