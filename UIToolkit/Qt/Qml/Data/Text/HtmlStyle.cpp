#include "HtmlStyle.h"

#include "RichTextFormat.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

std::optional<bool> boldOf(QStringView value)
{
    bool isNumber = false;
    const int weight = value.toInt(&isNumber);
    if (isNumber)
        return weight > RichText::heaviestNormalWeight;
    if (value.startsWith("bold"_L1, Qt::CaseInsensitive)) // bolder, too
        return true;
    if (value.startsWith("normal"_L1, Qt::CaseInsensitive) || value.startsWith("lighter"_L1, Qt::CaseInsensitive))
        return false;
    return std::nullopt;
}

std::optional<bool> italicOf(QStringView value)
{
    if (value.startsWith("italic"_L1, Qt::CaseInsensitive) || value.startsWith("oblique"_L1, Qt::CaseInsensitive))
        return true;
    if (value.startsWith("normal"_L1, Qt::CaseInsensitive))
        return false;
    return std::nullopt;
}

// Whether \a read finds its look before the size in "italic bold 12px Arial", where what is not named is normal.
std::optional<bool> inFont(QStringView value, std::optional<bool> (*read)(QStringView value))
{
    // A number alone is a weight.
    const auto isSize = [](QStringView word) {
        const auto isDigit = [](QChar c) { return c.isDigit(); };
        return (isDigit(word.front()) || word.front() == u'.') && !std::all_of(word.begin(), word.end(), isDigit);
    };
    bool isFound = false;
    for (const QStringView word : value.tokenize(u' ', Qt::SkipEmptyParts)) {
        if (isSize(word))
            return isFound;
        isFound = isFound || read(word).value_or(false);
    }
    return std::nullopt; // "inherit", or none that browsers read
}

std::optional<bool> underlineOf(QStringView value)
{
    if (value.contains("underline"_L1, Qt::CaseInsensitive))
        return true;
    if (value.startsWith("none"_L1, Qt::CaseInsensitive))
        return false;
    return std::nullopt;
}

std::optional<bool> keepsBlanksOf(QStringView value)
{
    return value.startsWith("pre"_L1, Qt::CaseInsensitive) && !value.startsWith("pre-line"_L1, Qt::CaseInsensitive);
}

std::optional<bool> hiddenOf(QStringView value)
{
    if (value.startsWith("none"_L1, Qt::CaseInsensitive))
        return true;
    return std::nullopt;
}

struct Property
{
    QLatin1StringView name;
    std::optional<bool> HtmlStyle::*member;
    std::optional<bool> (*read)(QStringView value);
};

constexpr Property properties[] = {
    {"font"_L1, &HtmlStyle::bold, [](QStringView value) { return inFont(value, boldOf); }},
    {"font"_L1, &HtmlStyle::italic, [](QStringView value) { return inFont(value, italicOf); }},
    {"font-weight"_L1, &HtmlStyle::bold, boldOf},
    {"font-style"_L1, &HtmlStyle::italic, italicOf},
    {"text-decoration"_L1, &HtmlStyle::underline, underlineOf},
    {"text-decoration-line"_L1, &HtmlStyle::underline, underlineOf},
    {"white-space"_L1, &HtmlStyle::keepsBlanks, keepsBlanksOf},
    {"display"_L1, &HtmlStyle::hidden, hiddenOf},
};

bool isSimpleName(QStringView name)
{
    return std::all_of(name.begin(), name.end(),
                       [](QChar c) { return c.isLetterOrNumber() || c == u'-' || c == u'_' || c == u'.'; });
}

qsizetype matchingBrace(QStringView text, qsizetype open)
{
    int depth = 0;
    for (qsizetype i = open; i < text.size(); ++i) {
        if (text.at(i) == u'{')
            ++depth;
        else if (text.at(i) == u'}' && --depth == 0)
            return i;
    }
    return -1;
}

} // namespace

void HtmlStyle::merge(const HtmlStyle &other)
{
    for (auto member :
         {&HtmlStyle::bold, &HtmlStyle::italic, &HtmlStyle::underline, &HtmlStyle::keepsBlanks, &HtmlStyle::hidden}) {
        if (other.*member)
            this->*member = other.*member;
    }
}

HtmlStyle HtmlStyle::fromDeclarations(QStringView declarations)
{
    HtmlStyle style;
    for (const QStringView declaration : declarations.tokenize(u';')) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon < 0)
            continue;
        const QStringView name = declaration.first(colon).trimmed();
        for (const Property &property : properties) {
            if (name.compare(property.name, Qt::CaseInsensitive) != 0)
                continue;
            if (const auto value = property.read(declaration.sliced(colon + 1).trimmed()))
                style.*property.member = value;
        }
    }
    return style;
}

void HtmlStyleSheet::read(QStringView sheet)
{
    // Comments would hide braces and declarations. An HTML comment is none in a style sheet, only its ends are.
    QString text;
    text.reserve(sheet.size());
    for (qsizetype position = 0; position < sheet.size();) {
        const qsizetype start = sheet.indexOf("/*"_L1, position);
        text += sheet.sliced(position, (start < 0 ? sheet.size() : start) - position);
        const qsizetype end = start < 0 ? -1 : sheet.indexOf("*/"_L1, start + 2);
        position = end < 0 ? sheet.size() : end + 2;
    }
    text.remove("<!--"_L1);
    text.remove("-->"_L1);

    const QStringView rules(text);
    for (qsizetype position = 0; position < rules.size();) {
        const qsizetype open = rules.indexOf(u'{', position);
        if (open < 0)
            return;
        QStringView selectors = rules.sliced(position, open - position);
        // What ends in a semicolon before the rule is a statement, as an import.
        selectors = selectors.sliced(selectors.lastIndexOf(u';') + 1).trimmed();
        // A group, as "@media print", holds rules for other occasions.
        const bool isGroup = selectors.startsWith(u'@');
        const qsizetype close = isGroup ? matchingBrace(rules, open) : rules.indexOf(u'}', open);
        if (close < 0)
            return;
        if (!isGroup)
            addRule(selectors, rules.sliced(open + 1, close - open - 1));
        position = close + 1;
    }
}

void HtmlStyleSheet::addRule(QStringView selectors, QStringView declarations)
{
    const HtmlStyle style = HtmlStyle::fromDeclarations(declarations);
    for (const QStringView selector : selectors.tokenize(u',')) {
        const QStringView name = selector.trimmed();
        if (!name.isEmpty() && isSimpleName(name))
            m_rules[name.toString().toLower()].merge(style);
    }
}

HtmlStyle HtmlStyleSheet::style(const QString &element, QStringView classes) const
{
    HtmlStyle style = m_rules.value(element);
    for (const QStringView name : classes.tokenize(u' ', Qt::SkipEmptyParts)) {
        const QString selector = u'.' + name.toString().toLower();
        style.merge(m_rules.value(selector));
        style.merge(m_rules.value(element + selector));
    }
    return style;
}
