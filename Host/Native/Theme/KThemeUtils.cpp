#include "KThemeUtils.h"

#include "KPalette.h"
#include "ThemeManager.h"

#include <QByteArray>
#include <QColor>
#include <QLoggingCategory>
#include <QSet>
#include <QString>

namespace {
// Silent unless a developer asks for it: applications may look for a set that a palette lacks.
Q_LOGGING_CATEGORY(colorSets, "korvu.colorsets", QtCriticalMsg)

struct ThemeTypeName
{
    QLatin1String name;
    AppThemeType type;
};

constexpr ThemeTypeName themeTypeNames[] = {
    {QLatin1String("global"), AppThemeType::Global},
    {QLatin1String("light"), AppThemeType::Light},
    {QLatin1String("dark"), AppThemeType::Dark},
    {QLatin1String("highContrast"), AppThemeType::HighContrast},
};

// Bindings ask again and again; a culprit is named the first time only.
template<typename Text>
bool firstTime(QSet<Text> &seen, const Text &text)
{
    const auto before = seen.size();
    seen.insert(text);
    return seen.size() != before;
}
}

KColorSet KThemeUtils::getColorSet(const QByteArray &name, AppThemeType themeType)
{
    const ThemeManager *manager = ThemeManager::instance();
    const KColorSet *found = manager->palette().find(name, manager->resolve(themeType));
    if (found)
        return *found;
    if (name.isEmpty())
        return {};

    static QSet<QByteArray> unknownNames;
    // A customised button has a colour where others name a set.
    if (!QColor::isValidColorName(QLatin1StringView(name)) && firstTime(unknownNames, name))
        qCWarning(colorSets, "Unknown colour set \"%s\".", name.constData());
    KColorSet unknown;
    unknown.setName(QString::fromUtf8(name));
    return unknown;
}

AppThemeType KThemeUtils::stringToThemeType(const QString &themeType)
{
    if (themeType.isEmpty())
        return AppThemeType::Global;
    for (const ThemeTypeName &known : themeTypeNames) {
        if (themeType == known.name)
            return known.type;
    }
    static QSet<QString> unknownTypes;
    if (firstTime(unknownTypes, themeType))
        qWarning("Unknown theme type \"%s\".", qUtf8Printable(themeType));
    return AppThemeType::Global;
}

bool KThemeUtils::isHighContrastEnabled()
{
    return ThemeManager::instance()->isHighContrastTheme();
}
