#include "KFont.h"

#include <QFontDatabase>

#include <iterator>
#include <utility>

#include "App.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto defaultFamilyName = "Segoe UI"_L1;
constexpr auto variableFamilyName = "Segoe UI Variable"_L1;
constexpr auto monospaceFamilyName = "Consolas"_L1;
constexpr auto emojiFamilyName = "Segoe UI Emoji"_L1;

enum class Family { Default, Monospace, Emoji };
enum class Line { None, Under };

struct Preset
{
    int pixelSize;
    QFont::Weight weight = QFont::Normal;
    QFont::Style style = QFont::StyleNormal;
    Line line = Line::None;
    Family family = Family::Default;
};

// In the order of KFont::Token.
constexpr Preset presets[] = {
    {26, QFont::DemiBold},
    {20, QFont::DemiBold},
    {18},
    {16, QFont::Medium},
    {14, QFont::Medium},
    {16, QFont::Normal, QFont::StyleNormal, Line::Under},
    {14, QFont::Normal, QFont::StyleNormal, Line::Under},
    {12, QFont::DemiBold},
    {16},
    {16, QFont::Bold},
    {14},
    {14, QFont::Bold},
    {14, QFont::Normal, QFont::StyleItalic},
    {14},
    {14, QFont::Light},
    {16, QFont::Bold},
    {16, QFont::DemiBold},
    {14, QFont::DemiBold},
    {18, QFont::Bold},
    {26},
    {26, QFont::Bold},
    {16, QFont::Bold, QFont::StyleNormal, Line::Under},
    {12},
    {14, QFont::Bold},
    {12, QFont::Bold},
    {16, QFont::Normal, QFont::StyleNormal, Line::None, Family::Monospace},
    {16, QFont::Normal, QFont::StyleNormal, Line::None, Family::Emoji},
};
static_assert(std::size(presets) == KFont::Emoji + 1);

const Preset &presetFor(KFont::Token token)
{
    if (token >= 0 && token < int(std::size(presets)))
        return presets[token];
    qWarning("KFont: there is no font token %d", int(token));
    return presets[KFont::BodySecondary];
}

QLatin1StringView familyName(Family family)
{
    switch (family) {
    case Family::Monospace:
        return monospaceFamilyName;
    case Family::Emoji:
        return emojiFamilyName;
    case Family::Default:
        break;
    }
    return defaultFamilyName;
}

struct Substitution
{
    QLatin1StringView family;
    QLatin1StringView candidates[4]; // the first that the system has is taken
};

constexpr Substitution familySubstitutions[] = {
    {defaultFamilyName, {"Inter"_L1, "Noto Sans"_L1, "DejaVu Sans"_L1, "Liberation Sans"_L1}},
    {variableFamilyName, {"Inter"_L1, "Noto Sans"_L1, "DejaVu Sans"_L1, "Liberation Sans"_L1}},
    {monospaceFamilyName, {"Noto Sans Mono"_L1, "DejaVu Sans Mono"_L1, "Liberation Mono"_L1, "Menlo"_L1}},
    {emojiFamilyName, {"Noto Color Emoji"_L1, "Apple Color Emoji"_L1, "Twemoji"_L1, "Noto Emoji"_L1}},
};

} // namespace

KFont::KFont(Token token, bool bold)
{
    const Preset &preset = presetFor(token);
    setFamily(familyName(preset.family));
    setPixelSize(qMax(1, qRound(preset.pixelSize * App::instance()->textScale())));
    setWeight(bold ? qMax(preset.weight, QFont::Bold) : preset.weight);
    setStyle(preset.style);
    setUnderline(preset.line == Line::Under);
}

QString KFont::defaultFamily()
{
    return defaultFamilyName;
}

QString KFont::monospaceFamily()
{
    return monospaceFamilyName;
}

QString KFont::emojiFamily()
{
    return emojiFamilyName;
}

void KFont::installSubstitutions()
{
    static bool installed = false;
    if (std::exchange(installed, true))
        return;
    for (const Substitution &substitution : familySubstitutions) {
        if (QFontDatabase::hasFamily(substitution.family))
            continue;
        for (const QLatin1StringView candidate : substitution.candidates) {
            if (QFontDatabase::hasFamily(candidate)) {
                QFont::insertSubstitution(substitution.family, candidate);
                break;
            }
        }
    }
    const QString fixedFamily = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    if (QFont::substitutes(monospaceFamilyName).isEmpty() && !QFontDatabase::hasFamily(monospaceFamilyName))
        QFont::insertSubstitution(monospaceFamilyName, fixedFamily);
}
