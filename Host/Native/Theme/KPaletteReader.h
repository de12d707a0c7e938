#pragma once

#include "korvuui_export.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QRgb>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

class QJsonObject;
class QJsonValue;

//! Position of a theme's colours in palette tables.
enum class KPaletteTheme { Light, Dark, HighContrast };
inline constexpr int KPaletteThemeCount = 3;
inline constexpr int KPaletteStateCount = 6;

//! The six colours of a set: normal, hovered, pressed, disabled, focused, checked.
using KPaletteColors = std::array<QRgb, KPaletteStateCount>;
//! For each theme the colours of every set, sorted by name.
using KPaletteTable = std::array<QMap<QByteArray, KPaletteColors>, KPaletteThemeCount>;

/*!
    Reads palette files (Host/Palettes/README.md describes them) and resolves them to colours. Files
    are layers: an entry of a later file replaces the entry of that name, and changing a base colour
    recolours all that is built on it. A bad entry is reported and left out, so that the one below
    it stays in force.
*/
class KORVUUI_EXPORT KPaletteReader
{
public:
    //! Index of a theme called "light", "dark" or "highContrast", or -1.
    static int themeIndex(const QString &name);
    static QString themeName(KPaletteTheme theme);
    //! Index of a state called "normal", "hovered", "pressed", "disabled", "focused" or "checked", or -1.
    static int stateIndex(const QString &name);

    //! Adds a file as the topmost layer. Returns false and reports why when it cannot be read as a whole.
    bool addFile(const QString &file);
    //! The same for a text; \a name stands for the file in messages.
    bool addText(const QByteArray &json, const QString &name);

    //! The colours of every set that could be resolved in all themes.
    KPaletteTable resolve();

    //! What was wrong so far: one line an entry, with file, entry and reason.
    QStringList warnings() const { return m_warnings; }
    //! Base colours and roles, as "theme.kind.name", that nothing used in the last resolve().
    QStringList unused() const;

private:
    struct ColorText // "name", "#rrggbb" or "transparent", each with an optional opacity
    {
        QString name; // empty for a literal colour
        QRgb color = 0;
        double opacity = 1;
    };
    struct BaseColor
    {
        QRgb color = 0;
    };
    struct States
    {
        QString base; // role or base colour that gives the states not named here
        double baseOpacity = 1;
        std::array<std::optional<ColorText>, KPaletteStateCount> states;
        QString entry; // where it was written, for messages
    };
    struct ThemeEntries
    {
        QHash<QString, BaseColor> scale;
        QHash<QString, States> roles;
        QHash<QString, States> sets;
    };
    struct Layer
    {
        QString file;
        std::array<ThemeEntries, KPaletteThemeCount> themes;
    };
    struct Themes // the themes that a section of a file speaks of
    {
        int first = 0;
        int last = KPaletteThemeCount - 1;
    };

    void readSections(Layer &layer, const QJsonObject &object, const QString &path, Themes themes);
    void readScale(Layer &layer, const QJsonObject &object, const QString &path, Themes themes);
    void readStates(Layer &layer, const QJsonObject &object, const QString &path, Themes themes,
                    QHash<QString, States> ThemeEntries::*target, const QString &prefix);
    std::optional<States> parseStates(const QString &file, const QString &entry, const QJsonValue &value);
    std::optional<ColorText> parseColor(const QString &file, const QString &entry, const QJsonValue &value);

    std::optional<KPaletteColors> resolveSet(int theme, const QString &name);
    std::optional<KPaletteColors> resolveStates(int theme, int layer, const States &states);
    std::optional<KPaletteColors> resolveBase(int theme, int layer, const States &states);
    std::optional<QRgb> resolveColor(int theme, int layer, const States &states, int state);
    const BaseColor *findScale(int theme, const QString &name);
    void warnIfMissing(const QString &name);

    void warn(const QString &file, const QString &entry, const QString &reason);

    QList<Layer> m_layers;
    QStringList m_warnings;
    QSet<QString> m_warned;
    QSet<QString> m_used;
    QStringList m_resolving;
};
