#include "RichTextInput.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct KeyRow
{
    QKeySequence::StandardKey key;
    RichTextInput::Action action;
    char16_t character = 0; // to type
};

// In the order in which they are tried.
constexpr KeyRow keyRows[] = {
    {QKeySequence::Paste, RichTextInput::Paste},
    {QKeySequence::InsertLineSeparator, RichTextInput::Type, QChar::LineSeparator},
    {QKeySequence::InsertParagraphSeparator, RichTextInput::Type, u'\n'},
    {QKeySequence::Bold, RichTextInput::Bold},
    {QKeySequence::Italic, RichTextInput::Italic},
    {QKeySequence::Underline, RichTextInput::Underline},
};

bool isPrintableAscii(QChar c)
{
    return c >= u' ' && c <= u'~';
}

} // namespace

RichTextInput RichTextInput::fromKey(const QKeyEvent &event)
{
    for (const KeyRow &row : keyRows) {
        if (event.matches(row.key))
            return {row.action, row.character ? QString(QChar(row.character)) : QString()};
    }
    const QString text = event.text();
    if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isPrintableAscii))
        return {};
    return {Type, text};
}
