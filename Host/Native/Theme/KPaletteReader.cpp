#include "KPaletteReader.h"

#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QRegularExpression>

#include <algorithm>

namespace {
constexpr QLatin1String themeNames[KPaletteThemeCount] = {
    QLatin1String("light"),
    QLatin1String("dark"),
    QLatin1String("highContrast"),
};

constexpr QLatin1String stateNames[KPaletteStateCount] = {
    QLatin1String("normal"),   QLatin1String("hovered"), QLatin1String("pressed"),
    QLatin1String("disabled"), QLatin1String("focused"), QLatin1String("checked"),
};
enum StateIndex { Normal, Hovered, Pressed, Disabled, Focused, Checked };

// Which state a state left out takes its colour from.
constexpr int stateFallbacks[KPaletteStateCount] = {Normal, Normal, Hovered, Normal, Normal, Normal};
// A disabled state left out is the normal colour at this part of its opacity.
constexpr double disabledOpacity = 0.4;

constexpr QLatin1String baseKey("as");

template<std::size_t N>
int indexOf(const QLatin1String (&names)[N], const QString &name)
{
    const auto found = std::find(std::begin(names), std::end(names), name);
    return found == std::end(names) ? -1 : int(found - std::begin(names));
}

QRgb faded(QRgb color, double opacity)
{
    return qRgba(qRed(color), qGreen(color), qBlue(color), qRound(qAlpha(color) * opacity));
}

QString kindOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("true or false");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("nothing");
    }
}

QString joined(const QString &path, const QString &key)
{
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}
}

int KPaletteReader::themeIndex(const QString &name)
{
    return indexOf(themeNames, name);
}

QString KPaletteReader::themeName(KPaletteTheme theme)
{
    return themeNames[std::size_t(theme)];
}

int KPaletteReader::stateIndex(const QString &name)
{
    return indexOf(stateNames, name);
}

bool KPaletteReader::addFile(const QString &name)
{
    QFile file(name);
    if (!file.exists()) {
        warn(name, {}, QStringLiteral("there is no such palette file"));
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        warn(name, {}, QStringLiteral("the palette file cannot be read: %1").arg(file.errorString()));
        return false;
    }
    return addText(file.readAll(), name);
}

bool KPaletteReader::addText(const QByteArray &json, const QString &name)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        const qsizetype line = 1 + QByteArrayView(json).first(qMin<qsizetype>(error.offset, json.size())).count('\n');
        warn(name, QStringLiteral("line %1").arg(line), error.errorString());
        return false;
    }
    if (!document.isObject()) {
        warn(name, {}, QStringLiteral("a palette file must hold an object"));
        return false;
    }
    Layer layer;
    layer.file = name;
    readSections(layer, document.object(), {}, {});
    m_layers.append(layer);
    return true;
}

void KPaletteReader::readSections(Layer &layer, const QJsonObject &object, const QString &path, Themes themes)
{
    // What a file says of one theme comes after what it says of all of them, so that it prevails.
    for (const bool ownThemes : {false, true}) {
        for (auto it = object.begin(); it != object.end(); ++it) {
            const bool isThemes = path.isEmpty() && it.key() == QLatin1String("themes");
            if (isThemes != ownThemes)
                continue;
            const QString entry = joined(path, it.key());
            if (it.key() == QLatin1String("about"))
                continue;
            if (!it->isObject()) {
                warn(layer.file, entry, QStringLiteral("expected an object, found %1").arg(kindOf(*it)));
                continue;
            }
            const QJsonObject section = it->toObject();
            if (isThemes) {
                for (auto theme = section.begin(); theme != section.end(); ++theme) {
                    const int index = themeIndex(theme.key());
                    if (index < 0)
                        warn(layer.file, joined(entry, theme.key()), QStringLiteral("unknown theme"));
                    else if (!theme->isObject())
                        warn(layer.file, joined(entry, theme.key()),
                             QStringLiteral("expected an object, found %1").arg(kindOf(*theme)));
                    else
                        readSections(layer, theme->toObject(), theme.key(), {index, index});
                }
            } else if (it.key() == QLatin1String("scale")) {
                readScale(layer, section, entry, themes);
            } else if (it.key() == QLatin1String("roles")) {
                readStates(layer, section, entry, themes, &ThemeEntries::roles, {});
            } else if (it.key() == QLatin1String("families")) {
                for (auto family = section.begin(); family != section.end(); ++family) {
                    if (family->isObject())
                        readStates(layer, family->toObject(), joined(entry, family.key()), themes, &ThemeEntries::sets,
                                   family.key() + QLatin1Char('-'));
                    else
                        warn(layer.file, joined(entry, family.key()),
                             QStringLiteral("expected an object, found %1").arg(kindOf(*family)));
                }
            } else if (it.key() == QLatin1String("sets")) {
                readStates(layer, section, entry, themes, &ThemeEntries::sets, {});
            } else {
                warn(layer.file, entry, QStringLiteral("unknown section"));
            }
        }
    }
}

void KPaletteReader::readScale(Layer &layer, const QJsonObject &object, const QString &path, Themes themes)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString entry = joined(path, it.key());
        const QJsonValue value = it->isObject() ? it->toObject().value(QLatin1String("color")) : QJsonValue(*it);
        const std::optional<ColorText> color = parseColor(layer.file, entry, value);
        if (!color)
            continue;
        if (!color->name.isEmpty()) {
            warn(layer.file, entry, QStringLiteral("a base colour must be written as \"#rrggbb\""));
            continue;
        }
        for (int theme = themes.first; theme <= themes.last; ++theme)
            layer.themes[std::size_t(theme)].scale.insert(it.key(), {faded(color->color, color->opacity)});
    }
}

void KPaletteReader::readStates(Layer &layer, const QJsonObject &object, const QString &path, Themes themes,
                                QHash<QString, States> ThemeEntries::*target, const QString &prefix)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const std::optional<States> states = parseStates(layer.file, joined(path, it.key()), *it);
        if (!states)
            continue;
        for (int theme = themes.first; theme <= themes.last; ++theme)
            (layer.themes[std::size_t(theme)].*target).insert(prefix + it.key(), *states);
    }
}

std::optional<KPaletteReader::States> KPaletteReader::parseStates(const QString &file, const QString &entry,
                                                                  const QJsonValue &value)
{
    States states;
    states.entry = entry;
    if (value.isString()) {
        const std::optional<ColorText> color = parseColor(file, entry, value);
        if (!color)
            return {};
        if (color->name.isEmpty()) {
            states.states[Normal] = color;
        } else {
            states.base = color->name;
            states.baseOpacity = color->opacity;
        }
        return states;
    }
    if (!value.isObject()) {
        warn(file, entry, QStringLiteral("expected a text or an object of states, found %1").arg(kindOf(value)));
        return {};
    }
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString place = joined(entry, it.key());
        if (it.key() == baseKey) {
            if (it->isString() && !it->toString().isEmpty())
                states.base = it->toString();
            else
                warn(file, place, QStringLiteral("expected the name of a role, found %1").arg(kindOf(*it)));
            continue;
        }
        const int state = stateIndex(it.key());
        if (state < 0)
            warn(file, place, QStringLiteral("unknown state"));
        else
            states.states[std::size_t(state)] = parseColor(file, place, *it);
    }
    if (states.base.isEmpty() && !states.states[Normal]) {
        // A bad "normal" was reported already.
        if (!object.contains(stateNames[Normal]))
            warn(file, entry, QStringLiteral("neither \"normal\" nor \"as\" is given"));
        return {};
    }
    return states;
}

std::optional<KPaletteReader::ColorText> KPaletteReader::parseColor(const QString &file, const QString &entry,
                                                                    const QJsonValue &value)
{
    if (!value.isString()) {
        warn(file, entry, QStringLiteral("expected a colour text, found %1").arg(kindOf(value)));
        return {};
    }
    static const QRegularExpression form(
        QStringLiteral("^(#[0-9A-Fa-f]{6}|[A-Za-z][A-Za-z0-9-]*)(?: *@ *([0-9]+(?:\\.[0-9]+)?)%)?$"));
    const QRegularExpressionMatch match = form.match(value.toString());
    const double percent = match.hasCaptured(2) ? match.captured(2).toDouble() : 100;
    if (!match.hasMatch() || percent > 100) {
        warn(file, entry, QStringLiteral("bad colour text \"%1\"").arg(value.toString()));
        return {};
    }
    ColorText color;
    color.opacity = percent / 100;
    const QString text = match.captured(1);
    if (text.startsWith(QLatin1Char('#')))
        color.color = QColor(text).rgb();
    else if (text != QLatin1String("transparent"))
        color.name = text;
    return color;
}

KPaletteTable KPaletteReader::resolve()
{
    m_used.clear();
    QSet<QString> names;
    for (const Layer &layer : std::as_const(m_layers)) {
        for (const ThemeEntries &entries : layer.themes) {
            for (auto it = entries.sets.begin(); it != entries.sets.end(); ++it)
                names.insert(it.key());
        }
    }
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    KPaletteTable table;
    for (const QString &name : std::as_const(sorted)) {
        std::array<std::optional<KPaletteColors>, KPaletteThemeCount> colors;
        for (int theme = 0; theme < KPaletteThemeCount; ++theme)
            colors[std::size_t(theme)] = resolveSet(theme, name);
        const auto missing = std::find(colors.begin(), colors.end(), std::nullopt);
        if (missing != colors.end()) {
            warnIfMissing(name);
            continue;
        }
        for (std::size_t theme = 0; theme < colors.size(); ++theme)
            table[theme].insert(name.toUtf8(), *colors[theme]);
    }
    return table;
}

void KPaletteReader::warnIfMissing(const QString &name)
{
    // A set that exists in one theme only would vanish at a theme switch.
    const Layer *writer = nullptr;
    std::array<bool, KPaletteThemeCount> defined{};
    for (const Layer &layer : std::as_const(m_layers)) {
        for (std::size_t theme = 0; theme < defined.size(); ++theme) {
            if (!layer.themes[theme].sets.contains(name))
                continue;
            writer = &layer;
            defined[theme] = true;
        }
    }
    const auto missing = std::find(defined.begin(), defined.end(), false);
    if (missing != defined.end())
        warn(writer->file, name,
             QStringLiteral("the colour set has no colours in the theme \"%1\"")
                 .arg(themeNames[missing - defined.begin()]));
}

std::optional<KPaletteColors> KPaletteReader::resolveSet(int theme, const QString &name)
{
    for (int layer = int(m_layers.size()) - 1; layer >= 0; --layer) {
        const auto &sets = m_layers.at(layer).themes[std::size_t(theme)].sets;
        const auto found = sets.constFind(name);
        if (found == sets.constEnd())
            continue;
        if (const auto colors = resolveStates(theme, layer, *found))
            return colors;
    }
    return {};
}

std::optional<KPaletteColors> KPaletteReader::resolveStates(int theme, int layer, const States &states)
{
    KPaletteColors colors{};
    if (!states.base.isEmpty()) {
        const auto base = resolveBase(theme, layer, states);
        if (!base)
            return {};
        colors = *base;
    }
    for (std::size_t state = 0; state < colors.size(); ++state) {
        std::optional<QRgb> color;
        if (states.states[state])
            color = resolveColor(theme, layer, states, int(state));
        if (color) {
            colors[state] = *color;
        } else if (states.base.isEmpty()) {
            if (state == Normal)
                return {};
            colors[state] = faded(colors[std::size_t(stateFallbacks[state])], state == Disabled ? disabledOpacity : 1);
        }
    }
    return colors;
}

std::optional<KPaletteColors> KPaletteReader::resolveBase(int theme, int layer, const States &states)
{
    const QString key = QString::number(layer) + QLatin1Char('/') + states.entry;
    if (m_resolving.contains(key)) {
        warn(m_layers.at(layer).file, states.entry, QStringLiteral("is defined by itself"));
        return {};
    }
    m_resolving.append(key);
    std::optional<KPaletteColors> colors;
    bool known = false;
    for (int below = int(m_layers.size()) - 1; below >= 0 && !colors; --below) {
        const auto &roles = m_layers.at(below).themes[std::size_t(theme)].roles;
        const auto role = roles.constFind(states.base);
        // A role that builds on its own name means the one that it replaces.
        if (role == roles.constEnd() || (below == layer && role->entry == states.entry))
            continue;
        known = true;
        m_used.insert(QStringLiteral("roles.") + states.base);
        colors = resolveStates(theme, below, *role);
    }
    m_resolving.removeLast();
    if (!colors) {
        if (const BaseColor *base = findScale(theme, states.base)) {
            colors = KPaletteColors{};
            colors->fill(base->color);
            (*colors)[Disabled] = faded(base->color, disabledOpacity);
        }
    }
    if (!colors) {
        if (!known)
            warn(m_layers.at(layer).file, states.entry,
                 QStringLiteral("unknown role or base colour \"%1\"").arg(states.base));
        return {};
    }
    for (QRgb &color : *colors)
        color = faded(color, states.baseOpacity);
    return colors;
}

std::optional<QRgb> KPaletteReader::resolveColor(int theme, int layer, const States &states, int state)
{
    const ColorText &text = *states.states[std::size_t(state)];
    QRgb color = text.color;
    if (!text.name.isEmpty()) {
        const BaseColor *base = findScale(theme, text.name);
        if (!base) {
            warn(m_layers.at(layer).file, joined(states.entry, stateNames[state]),
                 QStringLiteral("unknown base colour \"%1\"").arg(text.name));
            return {};
        }
        color = base->color;
    }
    return faded(color, text.opacity);
}

const KPaletteReader::BaseColor *KPaletteReader::findScale(int theme, const QString &name)
{
    for (auto layer = m_layers.crbegin(); layer != m_layers.crend(); ++layer) {
        const auto &scale = layer->themes[std::size_t(theme)].scale;
        const auto found = scale.constFind(name);
        if (found != scale.constEnd()) {
            m_used.insert(themeNames[theme] + QLatin1String(".scale.") + name);
            return &found.value();
        }
    }
    return nullptr;
}

QStringList KPaletteReader::unused() const
{
    QSet<QString> names;
    for (const Layer &layer : m_layers) {
        for (int theme = 0; theme < KPaletteThemeCount; ++theme) {
            const ThemeEntries &entries = layer.themes[std::size_t(theme)];
            for (auto it = entries.scale.begin(); it != entries.scale.end(); ++it)
                names.insert(themeNames[theme] + QLatin1String(".scale.") + it.key());
            for (auto it = entries.roles.begin(); it != entries.roles.end(); ++it)
                names.insert(QStringLiteral("roles.") + it.key());
        }
    }
    names.subtract(m_used);
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    return sorted;
}

void KPaletteReader::warn(const QString &file, const QString &entry, const QString &reason)
{
    // An entry for all themes fails in each of them; one message is enough.
    const QString place = entry.isEmpty() ? file : file + QLatin1String(": ") + entry;
    if (m_warned.contains(place))
        return;
    m_warned.insert(place);
    m_warnings.append(place + QLatin1String(": ") + reason);
}
