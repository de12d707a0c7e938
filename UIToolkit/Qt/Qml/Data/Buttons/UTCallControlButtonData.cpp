#include "UTCallControlButtonData.h"

#include "ComponentName.h"

#include <App.h>
#include <KFont.h>
#include <KThemeUtils.h>
#include <ThemeManager.h>

#include <QHash>
#include <QLatin1StringView>

#include <array>
#include <optional>

using namespace UTCallControlButtonEnum;

namespace {

// A value for each ButtonSize: Medium, Small, ExtremeSmall.
using Lengths = std::array<int, 3>;
using Sizes = std::array<QSize, 3>;

struct Metrics
{
    Lengths leftSideLeftPadding;
    Lengths leftSideRightPadding;
    Sizes leftIconSize;
    Lengths textLeftMargin;
    Lengths separatorHeight;
    Lengths rightSideLeftPadding;
    Lengths rightSideRightPadding;
    Sizes rightIconSize;
};

constexpr Lengths none = {0, 0, 0};
constexpr QSize noSize = {0, 0};
constexpr Sizes noSizes = {noSize, noSize, noSize};
// Only Panel and Round come in ExtremeSmall; that the others vanish at that size is meant.
constexpr Sizes splitIcon = {QSize(20, 20), QSize(16, 16), noSize};
constexpr Sizes loneIcon = {QSize(20, 20), QSize(16, 16), QSize(16, 16)};
constexpr Sizes arrow = {QSize(12, 12), QSize(10, 10), noSize};

// Never changed, and built while the library loads.
const QHash<ButtonType, Metrics> metricTable = {
    {ClosedCaptions, {{16, 12, 0}, {4, 4, 0}, splitIcon, none, none, {4, 2, 0}, {12, 8, 0}, arrow}},
    {DualArrow, {{16, 12, 0}, {4, 4, 0}, splitIcon, {6, 6, 0}, none, {4, 2, 0}, {12, 8, 0}, arrow}},
    {DualIcon, {{16, 12, 0}, {6, 4, 0}, splitIcon, {4, 4, 0}, {20, 16, 0}, {6, 4, 0}, {16, 12, 0}, splitIcon}},
    {Panel, {{16, 12, 10}, {16, 12, 10}, loneIcon, {6, 6, 4}, none, none, none, noSizes}},
    {Round, {{10, 8, 6}, {10, 8, 6}, loneIcon, none, none, none, none, noSizes}},
    {KorvuAssistant, {none, none, {QSize(40, 40), QSize(32, 32), noSize}, none, none, none, none, noSizes}},
    // Wider than high.
    {KorvuAssistantLarge, {none, none, {QSize(64, 40), QSize(52, 32), noSize}, none, none, none, none, noSizes}},
};

struct SizeMetrics
{
    int height;
    KFont::Token font;
};

// By ButtonSize.
constexpr std::array<SizeMetrics, 3> sizeTable = {{
    /* Medium */ {40, KFont::BodyPrimarySemibold},
    /* Small */ {32, KFont::BodyPrimarySemibold},
    /* ExtremeSmall */ {28, KFont::BodySecondarySemibold},
}};

struct Flags
{
    bool canShowText;
    bool separatorVisible;
    std::optional<bool> rightButtonVisible;
    std::optional<bool> canShowBadge;
};

// By ButtonType. What is left out stays as it is, so the large assistant keeps the right half of the type before it,
// and no type brings the badge back. That is meant.
constexpr std::array<Flags, 7> typeTable = {{
    /* ClosedCaptions */ {false, false, true, {}},
    /* DualArrow */ {true, false, true, {}},
    /* DualIcon */ {true, true, true, {}},
    /* Panel */ {true, false, false, {}},
    /* Round */ {false, false, false, {}},
    /* KorvuAssistant */ {false, false, false, {}},
    /* KorvuAssistantLarge */ {false, false, {}, false},
}};

struct StyleColors
{
    QLatin1StringView background;
    QLatin1StringView checkedBackground;
    QLatin1StringView border;
    QLatin1StringView text;
};

// By ButtonStyle. That Ghost takes its backgrounds from the secondary sets, not from its own, is meant.
constexpr std::array<StyleColors, 5> styleTable = {{
    /* Secondary */
    {QLatin1StringView("button-secondary-background"), QLatin1StringView("button-secondary-active-background"),
     QLatin1StringView("button-secondary-border"), QLatin1StringView("button-secondary-text")},
    /* CommonSecondary */
    {QLatin1StringView("button-common-secondary-background"), QLatin1StringView("button-common-secondary-background"),
     QLatin1StringView("button-common-secondary-border"), QLatin1StringView("button-common-secondary-text")},
    /* Ghost, inactive */
    {QLatin1StringView("button-secondary-background"), QLatin1StringView("button-secondary-active-background"),
     QLatin1StringView(), QLatin1StringView("button-ghost-text")},
    /* Cancel */
    {QLatin1StringView("button-cancel-fill-background"), QLatin1StringView("button-cancel-fill-background"),
     QLatin1StringView("button-cancel-fill-border"), QLatin1StringView("button-cancel-fill-text")},
    /* Join */
    {QLatin1StringView("button-join-fill-background"), QLatin1StringView("button-join-fill-background"),
     QLatin1StringView("button-join-fill-border"), QLatin1StringView("button-join-fill-text")},
}};

// Without a border of its own a button has one that is seen in high contrast only.
const QString faintBorder = QStringLiteral("button-ghost-border");

constexpr StyleColors activeGhost = {QLatin1StringView("button-secondary-active-background"),
                                     QLatin1StringView("button-secondary-active-background"), QLatin1StringView(),
                                     QLatin1StringView("button-ghost-active-text")};

// The fonts of all sizes, built once for each text scale.
const QFont &fontOf(size_t size)
{
    static qreal scale = 0;
    static std::array<QFont, sizeTable.size()> fonts;
    if (scale != App::instance()->textScale()) {
        scale = App::instance()->textScale();
        for (size_t i = 0; i < sizeTable.size(); ++i)
            fonts[i] = KFont(sizeTable[i].font, false);
    }
    return fonts[size];
}

} // namespace

UTCallControlButtonData::UTCallControlButtonData(QObject *attachee)
    : KObject(attachee)
{
    if (!ComponentName::check(attachee, "UTCallControlButton"))
        return;
    connect(this, &Self::buttonTypeChanged, this, &Self::updateButtonType);
    connect(this, &Self::buttonSizeChanged, this, &Self::updateButtonSize);
    connect(this, &Self::buttonStyleChanged, this, &Self::updateButtonStyle);
    connect(this, &Self::buttonStateChanged, this, &Self::updateButtonStyle);
    connect(this, &Self::showTextChanged, this, &Self::onShowTextChanged);
    connect(this, &Self::textColorSetNameChanged, this, &Self::updateTextColorSet);
    connect(this, &Self::themeTypeChanged, this, &Self::updateTextColorSet);
    connect(ThemeManager::instance(), &ThemeManager::globalThemeChanged, this, &Self::updateTextColorSet);
    connect(App::instance(), &App::textScaleChanged, this, &Self::updateFont);
    updateButtonType();
    updateButtonSize();
    updateButtonStyle();
    updatePanelPadding();
    m_button = qobject_cast<QQuickItem *>(attachee);
    updateButton();
}

void UTCallControlButtonData::updateButtonType()
{
    const Update update(this);
    if (size_t(m_buttonType) < typeTable.size()) {
        const Flags &flags = typeTable[size_t(m_buttonType)];
        setCanShowText(flags.canShowText);
        setSeparatorVisible(flags.separatorVisible);
        setRightButtonVisible(flags.rightButtonVisible.value_or(m_rightButtonVisible));
        setCanShowBadge(flags.canShowBadge.value_or(m_canShowBadge));
    }
    updatePanelPadding();
}

void UTCallControlButtonData::setTypeWithMetrics(ButtonType type)
{
    const Update update(this);
    setButtonType(type);
    if (m_button)
        updateButtonSize();
}

void UTCallControlButtonData::updateButtonSize()
{
    const Update update(this);
    const size_t size = size_t(m_buttonSize);
    if (size < sizeTable.size()) {
        setHeight(sizeTable[size].height);
        updateFont();
        const auto row = metricTable.constFind(m_buttonType);
        if (row != metricTable.cend()) {
            setLeftSideLeftPadding(row->leftSideLeftPadding[size]);
            setLeftSideRightPadding(row->leftSideRightPadding[size]);
            setLeftIconSize(row->leftIconSize[size]);
            setTextLeftMargin(row->textLeftMargin[size]);
            setSeparatorHeight(row->separatorHeight[size]);
            setRightSideLeftPadding(row->rightSideLeftPadding[size]);
            setRightSideRightPadding(row->rightSideRightPadding[size]);
            setRightIconSize(row->rightIconSize[size]);
        }
    }
    updatePanelPadding();
}

void UTCallControlButtonData::updateButtonStyle()
{
    if (size_t(m_buttonStyle) >= styleTable.size())
        return;
    const Update update(this);
    const bool isActiveGhost = m_buttonStyle == Ghost && m_buttonState == Active;
    const StyleColors &colors = isActiveGhost ? activeGhost : styleTable[size_t(m_buttonStyle)];
    setBackgroundColorSetName(colors.background);
    setCheckedBackgroundColorSetName(colors.checkedBackground);
    setBorderColorSetName(colors.border);
    setTextColorSetName(colors.text);
}

void UTCallControlButtonData::onShowTextChanged()
{
    updatePanelPadding();
}

void UTCallControlButtonData::updateFont()
{
    if (size_t(m_buttonSize) < sizeTable.size())
        setFont(fontOf(size_t(m_buttonSize)));
}

// A panel button without a label is as round as a Round one.
void UTCallControlButtonData::updatePanelPadding()
{
    const size_t size = size_t(m_buttonSize);
    if (m_buttonType != Panel || size >= sizeTable.size())
        return;
    const auto row = metricTable.constFind(m_showText ? Panel : Round);
    setLeftSideLeftPadding(row->leftSideLeftPadding[size]);
    setLeftSideRightPadding(row->leftSideRightPadding[size]);
}

void UTCallControlButtonData::updateTextColorSet()
{
    set(m_textColorSet,
        KThemeUtils::getColorSet(m_textColorSetName.toUtf8(), KThemeUtils::stringToThemeType(m_themeType)),
        &Self::textColorSetChanged);
}

void UTCallControlButtonData::updateButton()
{
    if (!m_button)
        return;
    m_button->setImplicitWidth(m_leftSideLeftPadding + m_leftIconSize.width() + m_labelRoom + m_leftSideRightPadding
                               + m_rightRoom);
    m_button->setImplicitHeight(std::max<qreal>(m_height, m_labelHeight));
    // Halves that a line parts are checked each on its own; else the right one is an annex of the left one.
    giveButton("backgroundColorSetName", m_buttonBackground,
               m_leftChecked && !m_separatorVisible ? m_checkedBackgroundColorSetName : m_backgroundColorSetName);
    giveButton("borderColorSetName", m_buttonBorder,
               m_borderColorSetName.isEmpty() ? faintBorder : m_borderColorSetName);
}

void UTCallControlButtonData::giveButton(const char *property, QString &given, const QString &name)
{
    if (given == name)
        return;
    given = name;
    m_button->setProperty(property, name);
}
