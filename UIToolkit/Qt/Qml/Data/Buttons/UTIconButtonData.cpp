#include "UTIconButtonData.h"

#include "ColorTokens.h"
#include "ComponentName.h"

#include <array>

namespace {

using enum ColorToken;
using namespace Qt::StringLiterals;

struct Colors
{
    ColorToken background = InteractiveiconContainerBackground;
    ColorToken text = InteractiveiconPrimaryOutlineIconInactive;
    ColorToken border = None;
    ColorToken activeBackground = None;
    ColorToken activeText = InteractiveiconPrimaryOutlineIconActive;
    ColorToken activeBorder = None;
};

struct Look
{
    UTIconData::Names icons;
    Colors colors = {};
};

constexpr UTIconData::Names always(QLatin1StringView name)
{
    return {name, name, name, name, name};
}

// A setting or a favourite that is on is filled.
constexpr UTIconData::Names filledWhenChecked(QLatin1StringView name, QLatin1StringView filled)
{
    return {name, name, name, filled, name};
}

constexpr Colors plain = {};
// Solid icons, with a stronger colour than outlines while unchecked would be too heavy.
constexpr Colors solid = {.text = InteractiveiconSecondaryFilledIconInactive,
                          .activeText = InteractiveiconSecondaryFilledIconActive};
constexpr Colors favorite = {.text = InteractiveiconTertiaryFilledIconInactive,
                             .activeText = InteractiveiconTertiaryFilledFavoriteIconActive};
constexpr Colors setting = {.text = InteractiveiconPrimaryFilledIconInactive,
                            .activeText = InteractiveiconPrimaryFilledIconActive};
// A link looks like one, and a warning warns, checked or not.
constexpr Colors link = {.text = HyperlinkAccentText, .activeText = None};
constexpr Colors warning = {.text = InteractiveiconQuaternaryFilledIconActive, .activeText = None};
constexpr Colors dismiss = {.text = CanceliconDefaultIcon, .activeText = None};

// By UTButtonType::Type, from Settings on.
constexpr std::array<Look, 13> typeTable = {{
    /* Settings */ {filledWhenChecked("settings-bold"_L1, "settings-filled"_L1), setting},
    /* Favorite */ {filledWhenChecked("favorite-bold"_L1, "favorite-filled"_L1), favorite},
    /* Info */ {always("info-circle-filled"_L1), solid},
    /* Attachment */ {always("attachment-bold"_L1), plain},
    /* Emoji */ {always("emoji-happy-bold"_L1), plain},
    /* Link */ {always("link-bold"_L1), link},
    /* Pen */ {always("edit-bold"_L1), plain},
    /* Warning */ {always("warning-badge-filled"_L1), warning},
    /* Popout */ {always("pop-out-bold"_L1), plain},
    /* Popin */ {always("pop-in-bold"_L1), plain},
    /* Dismiss */ {always("cancel-bold"_L1), dismiss},
    /* Copy */ {always("copy-bold"_L1), plain},
    /* OutgoingCall */ {always("outgoing-call-legacy-bold"_L1), plain},
}};

// In high contrast the form tells what a button is for, and a border that it is one.
constexpr Colors highContrast = {ButtonSecondaryBackground, ButtonSecondaryText,
                                 ButtonSecondaryBorder,     ButtonSecondaryActiveBackground,
                                 ButtonSecondaryActiveText, ButtonSecondaryActiveBorder};

constexpr QSize iconBox(16, 16);

} // namespace

UTIconButtonData::UTIconButtonData(QObject *attachee)
    : BoxData(attachee, {Background, Border, Text, Icon, RightIcon})
    , m_iconData(new UTIconData(this))
{
    setIconSize(iconBox);
    setRadius(buttonSize().height() / 2);
    connect(this, &ColorGroup::eventDataChanged, this, [this] { m_iconData->setEventData(eventData()); });
    connect(this, &UTIconButtonData::typeChanged, this, &UTIconButtonData::buttonDataChanged);
    if (!ComponentName::check(attachee, "UTIconButton"))
        return;
    connect(this, &UTIconButtonData::buttonDataChanged, this, &UTIconButtonData::refresh);
    paintPartsOf(attachee);
}

void UTIconButtonData::refresh()
{
    const size_t row = size_t(m_type) - UTButtonType::Settings;
    if (row >= typeTable.size())
        return;
    const Colors &colors = isHighContrast() ? highContrast : typeTable[row].colors;
    m_iconData->setNames(typeTable[row].icons);
    setToken(Background, &UTColorData::setToken, ColorTokens::name(colors.background));
    setToken(Border, &UTColorData::setToken, ColorTokens::name(colors.border));
    setToken(Background, &UTColorData::setActiveToken, ColorTokens::name(colors.activeBackground));
    setToken(Border, &UTColorData::setActiveToken, ColorTokens::name(colors.activeBorder));
    for (Slot slot : {Text, Icon, RightIcon}) {
        setToken(slot, &UTColorData::setToken, ColorTokens::name(colors.text));
        setToken(slot, &UTColorData::setActiveToken, ColorTokens::name(colors.activeText));
    }
    setBorder(colors.border == ColorToken::None ? 0 : 1);
}
