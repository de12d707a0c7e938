#pragma once

#include <QObject>

/*! Colours and sizes of a text button. */
namespace UTTextButtonEnum {
Q_NAMESPACE

enum class TextButtonColorStyle : int {
    Accent,
    Cobalt,
    Cyan,
    Mint,
    Lime,
    Warning,
    Gold,
    Orange,
    Pink,
    Purple,
    Violet,
    Slate,
    Share
};
Q_ENUM_NS(TextButtonColorStyle)

enum class TextButtonSizeStyle : int { Primary, Secondary };
Q_ENUM_NS(TextButtonSizeStyle)

} // namespace UTTextButtonEnum
