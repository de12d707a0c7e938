#pragma once

#include <QString>
#include <QStringView>

#include "korvuui_export.h"

//! Emojis in text: finding them, and turning them into pictures of the "emoji" image provider and back.
namespace EmojiText {

//! The identifier of the image provider that draws the pictures.
inline constexpr char imageProviderId[] = "emoji";

//! The most code points that one picture stands for; the longest sequence in use has ten.
inline constexpr int maximumCodePoints = 32;

//! The number of UTF-16 units of the emoji that begins at \a position of \a text, 0 when none begins there. An emoji is
//! a whole sequence: flags, keycaps, skin tones, joined people, tags and variation selectors belong to it. Characters
//! that are letters by default (digits, "©", "❤") are emojis only with an emoji variation selector or in a sequence.
KORVUUI_EXPORT qsizetype emojiLength(QStringView text, qsizetype position);

//! \a text with every emoji outside of tags replaced by an img element \a height pixels high and wide. Tags, comments,
//! styles, scripts and markup that never ends are left as they are. A height that is not positive gives 16 pixels; heights above 512 give 512.
KORVUUI_EXPORT QString replaceEmojisByImages(const QString &text, qreal height);

//! The reverse of replaceEmojisByImages: img elements of our provider become emojis again, whatever their other
//! attributes are; all else stays.
KORVUUI_EXPORT QString replaceImagesByEmojis(const QString &text);

//! The emoji that an img element of our provider shows; empty for any other tag.
KORVUUI_EXPORT QString emojiOfImage(QStringView tagSource);

//! The emoji that \a id ("1f468-200d-1f467", as in "image://emoji/1f468-200d-1f467") names; empty when it names none.
KORVUUI_EXPORT QString emojiOfId(QStringView id);

} // namespace EmojiText
