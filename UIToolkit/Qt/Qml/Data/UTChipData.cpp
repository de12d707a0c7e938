#include "UTChipData.h"

#include "ColorTokens.h"
#include "ComponentName.h"

#include <array>

namespace {

using enum ColorToken;

constexpr int cornerRadius = 4;
constexpr QSize iconBox(16, 16);

// By UTChipStyle::Style. None, which shows in high contrast only, and unknown numbers have the default outline.
constexpr std::array<ColorToken, 10> borderTable = {
    /* None */ ButtonSecondaryBorder,
    /* Outline_Default */ ButtonSecondaryBorder,
    /* Outline_Cobalt */ ChipsOutlineMultilineTextCobalt,
    /* Outline_Cyan */ ChipsOutlineMultilineTextCyan,
    /* Outline_Mint */ ChipsOutlineMultilineTextMint,
    /* Outline_Lime */ ChipsOutlineMultilineTextLime,
    /* Outline_Orange */ ChipsOutlineMultilineTextOrange,
    /* Outline_Pink */ ChipsOutlineMultilineTextPink,
    /* Outline_Purple */ ChipsOutlineMultilineTextPurple,
    /* Outline_Violet */ ChipsOutlineMultilineTextViolet,
};

} // namespace

UTChipData::UTChipData(QObject *attachee)
    : BoxData(attachee, {Background, Border, Text})
{
    if (!ComponentName::check(attachee, "UTChip"))
        return;
    connect(this, &UTChipData::styleChanged, this, &UTChipData::chipDataChanged);
    connect(this, &UTChipData::chipDataChanged, this, &UTChipData::refresh);
}

void UTChipData::refresh()
{
    const bool hasOwnBorder = !isHighContrast() && size_t(m_style) < borderTable.size();
    if (m_style == UTChipStyle::None && !isHighContrast())
        return;
    const ColorToken border = hasOwnBorder ? borderTable[size_t(m_style)] : ButtonSecondaryBorder;
    setToken(Background, &UTColorData::setToken, ColorTokens::name(ButtonSecondaryBackground));
    setToken(Text, &UTColorData::setToken, ColorTokens::name(ButtonSecondaryText));
    setToken(Border, &UTColorData::setToken, ColorTokens::name(border));
    setBorder(border == ColorToken::None ? 0 : 1);
    setRadius(cornerRadius);
    setIconSize(iconBox);
}
