#include "KKeySequence.h"

#include <QKeySequence>

#include <iterator>

using namespace Qt::StringLiterals;

namespace {

// In the order of KKeySequence::Type.
constexpr QKeySequence::StandardKey standardKeys[] = {
    QKeySequence::UnknownKey, QKeySequence::UnknownKey,   QKeySequence::Undo,      QKeySequence::Redo,
    QKeySequence::Cut,        QKeySequence::Copy,         QKeySequence::Paste,     QKeySequence::SelectAll,
    QKeySequence::Bold,       QKeySequence::Italic,       QKeySequence::Underline, QKeySequence::Close,
    QKeySequence::Find,       QKeySequence::HelpContents,
};
static_assert(std::size(standardKeys) == KKeySequence::Help + 1);

} // namespace

QString KKeySequence::lookUp(Type type)
{
    if (type < Unknown || type > Help)
        return {};
    // Platforms have a key of their own for it, but name no sequence.
    if (type == ContextMenu)
        return u"Shift+F10"_s;
    return QKeySequence(standardKeys[type]).toString(QKeySequence::PortableText);
}
