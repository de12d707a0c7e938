#pragma once

#include <QObject>
#include <QString>

#include "korvuui_export.h"

//! The application's shortcuts by purpose.
namespace KKeySequence {
Q_NAMESPACE_EXPORT(KORVUUI_EXPORT)

enum Type { Unknown, ContextMenu, Undo, Redo, Cut, Copy, Paste, SelectAll, Bold, Italic, Underline, Close, Find, Help };
Q_ENUM_NS(Type)

//! The first key sequence of \a type on this platform, as in "Ctrl+C"; empty where there is none.
KORVUUI_EXPORT QString lookUp(Type type);

} // namespace KKeySequence
