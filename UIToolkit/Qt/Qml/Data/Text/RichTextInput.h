#pragma once

#include <QString>

class QKeyEvent;

//! What a key means to the compose area.
struct RichTextInput
{
    enum Action { None, Type, Paste, Bold, Italic, Underline };

    Action action = None;
    QString text; //!< to type

    //! Only printable ASCII is for the compose area to type; any other text is left to the text area, on purpose.
    static RichTextInput fromKey(const QKeyEvent &event);
};
