#pragma once

#include <QObject>

/*! The outlines of a chip. */
namespace UTChipStyle {
Q_NAMESPACE

enum Style : int {
    None,
    Outline_Default,
    Outline_Cobalt,
    Outline_Cyan,
    Outline_Mint,
    Outline_Lime,
    Outline_Orange,
    Outline_Pink,
    Outline_Purple,
    Outline_Violet
};
Q_ENUM_NS(Style)

} // namespace UTChipStyle
