#include "IUTButtonData.h"

#include "ColorTokens.h"
#include "ComponentName.h"

#include <App.h>

#include <array>

namespace {

using enum ColorToken;

struct StyleColors
{
    ColorToken background = None;
    ColorToken text = None;
    ColorToken border = None;
    ColorToken activeBackground = None;
    ColorToken activeText = None;
    ColorToken activeBorder = None;
};

// By UTButtonStyle::Style. That Clear repeats Primary, Selected is the active Secondary and SkinTone has no text is meant.
// The text of Customized is a colour of the application's and not a colour set.
constexpr std::array<StyleColors, 26> styleTable = {{
    /* None */ {},
    /* Primary */ {ButtonPrimaryBackground, ButtonPrimaryText},
    /* Secondary */
    {ButtonSecondaryBackground, ButtonSecondaryText, ButtonSecondaryBorder, ButtonSecondaryActiveBackground,
     ButtonSecondaryActiveText, ButtonSecondaryActiveBorder},
    /* Ghost */ {ButtonGhostBackground, ButtonGhostText, None, ButtonGhostActiveBackground, ButtonGhostActiveText},
    /* Accent */ {ButtonAccentFillBackground, ButtonAccentFillText},
    /* AccentGhost */ {ButtonAccentGhostBackground, ButtonAccentGhostText},
    /* CancelGhost */ {ButtonCancelGhostBackground, ButtonCancelGhostText},
    /* MessageGhost */ {ButtonMessageGhostBackground, ButtonMessageGhostText},
    /* Join */ {ButtonJoinFillBackground, ButtonJoinFillText},
    /* OutlineJoin */ {ButtonJoinOutlineBackground, ButtonJoinOutlineText, ButtonJoinOutlineBorder},
    /* Cancel */ {ButtonCancelFillBackground, ButtonCancelFillText},
    /* OutlineCancel */ {ButtonCancelOutlineBackground, ButtonCancelOutlineText, ButtonCancelOutlineBorder},
    /* Message */ {ButtonMessageFillBackground, ButtonMessageFillText},
    /* OverLay */ {ButtonOverlayBackground, ButtonOverlayText, ButtonOverlayBorder},
    /* TeachingPrimary */ {CoachmarkteachingButtonPrimaryBackground, CoachmarkteachingButtonPrimaryText},
    /* TeachingSecondary */
    {CoachmarkteachingButtonSecondaryBackground, CoachmarkteachingButtonSecondaryText,
     CoachmarkteachingButtonSecondaryBorder},
    /* DeviceActive */ {GlobalHeaderButtonDeviceBackground, GlobalHeaderButtonDeviceTextActive},
    /* DeviceInactive */ {GlobalHeaderButtonDeviceBackground, GlobalHeaderButtonDeviceTextInactive},
    /* CommonPrimary */ {ButtonCommonBackground, ButtonCommonText},
    /* CommonSecondary */ {ButtonCommonSecondaryBackground, ButtonCommonSecondaryText, ButtonCommonSecondaryBorder},
    /* CommonGhost */ {ButtonCommonGhostBackground, ButtonCommonGhostText},
    /* CommonGhostInverted */ {ButtonCommonGhostInvertedBackground, ButtonCommonGhostInvertedText},
    /* Selected */ {ButtonSecondaryActiveBackground, ButtonSecondaryActiveText},
    /* Customized */ {ButtonGhostBackground, None, None, ButtonGhostActiveBackground},
    /* SkinTone */
    {ButtonSkinToneBackground, None, ButtonSkinToneBorderInactive, None, None, ButtonSkinToneBorderActive},
    /* Clear */ {ButtonPrimaryBackground, ButtonPrimaryText},
}};

StyleColors colorsOf(UTButtonStyle::Style style)
{
    return size_t(style) < styleTable.size() ? styleTable[size_t(style)] : StyleColors();
}

// High contrast tells buttons apart by their active colours only.
StyleColors highContrastColorsOf(UTButtonStyle::Style style, bool checked)
{
    StyleColors colors = checked ? StyleColors{ButtonGhostActiveBackground, ButtonGhostActiveText, ButtonPrimaryBorder}
                                 : StyleColors{ButtonPrimaryBackground, ButtonPrimaryText, ButtonPrimaryBorder};
    if (style == UTButtonStyle::Secondary || style == UTButtonStyle::Ghost) {
        const StyleColors own = colorsOf(style);
        colors.activeBackground = own.activeBackground;
        colors.activeText = own.activeText;
        colors.activeBorder = own.activeBorder;
    }
    return colors;
}

} // namespace

IUTButtonData::IUTButtonData(QObject *attachee, const char *component)
    : BoxData(attachee, {Background, Border, Text, Icon, RightIcon})
{
    for (auto input : {&IUTButtonData::styleChanged, &IUTButtonData::sizeChanged,
                       &IUTButtonData::iconColorSetNameChanged, &IUTButtonData::rightIconColorSetNameChanged})
        connect(this, input, this, &IUTButtonData::buttonDataChanged);
    if (!ComponentName::check(attachee, component))
        return;
    connect(this, &IUTButtonData::buttonDataChanged, this, &IUTButtonData::refresh);
    connect(App::instance(), &App::textScaleChanged, this, &IUTButtonData::updateSize);
    paintPartsOf(attachee);
}

void IUTButtonData::setThemeType(const QString &type)
{
    if (themeType() == type)
        return;
    BoxData::setThemeType(type);
    Q_EMIT onThemeTypeChanged();
}

void IUTButtonData::refresh()
{
    updateTokens();
    updateSize();
}

void IUTButtonData::updateTokens()
{
    const StyleColors colors =
        isHighContrast() ? highContrastColorsOf(m_style, eventData() && eventData()->checked()) : colorsOf(m_style);
    // A colour of the application's own has no place in high contrast.
    const bool customized = m_style == UTButtonStyle::Customized && !isHighContrast();

    const QString text = customized ? m_iconColorCustomized : ColorTokens::name(colors.text);
    const QString icon = m_iconColorSetName.isEmpty() ? text : m_iconColorSetName;
    const QString rightIcon = m_rightIconColorSetName.isEmpty() ? icon : m_rightIconColorSetName;
    const QString activeText = customized ? m_iconColorCustomized : ColorTokens::name(colors.activeText);

    setToken(Background, &UTColorData::setToken, ColorTokens::name(colors.background));
    setColor(Text, customized, text);
    for (Slot slot : {Text, Icon, RightIcon})
        setCustomized(slot, customized);
    setToken(Border, &UTColorData::setToken, ColorTokens::name(colors.border));
    setColor(Icon, customized, icon);
    setColor(RightIcon, customized, rightIcon);
    setToken(Background, &UTColorData::setActiveToken, ColorTokens::name(colors.activeBackground));
    // Neither the label nor the right icon has active colours, while the icon has those of the text. That is meant.
    setToken(Icon, &UTColorData::setActiveToken, activeText);
    setToken(Border, &UTColorData::setActiveToken, ColorTokens::name(colors.activeBorder));

    setBorder(colors.border == None ? 0 : 1);
}

void IUTButtonData::setColor(Slot slot, bool customized, const QString &colorOrToken)
{
    UTColorData *color = colorData(slot);
    if (!color)
        return;
    if (customized)
        color->setColor(QColor::fromString(colorOrToken));
    else
        color->setToken(colorOrToken);
}

void IUTButtonData::setCustomized(Slot slot, bool customized)
{
    UTColorData *color = colorData(slot);
    if (!color || color->colorCustomized() == customized)
        return;
    color->setColorCustomized(customized);
    // Back from a customized colour, which would stay until the next change of state.
    if (!customized)
        color->onEventDataChanged();
}
