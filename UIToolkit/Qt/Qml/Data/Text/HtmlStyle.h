#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <optional>

//! What one element, or one rule of a style sheet, says about its text; nothing where it leaves things as they are.
struct HtmlStyle
{
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<bool> keepsBlanks;
    std::optional<bool> hidden;

    //! Takes over what \a other says.
    void merge(const HtmlStyle &other);

    //! Reads a list of declarations, as in a style attribute.
    static HtmlStyle fromDeclarations(QStringView declarations);
};

/*!
    The rules of a style sheet that matter to the compose area: those for an element, a class, or an element of a class.
    All others are passed over, and so is what is no style sheet at all. Takes time in proportion to the text.
*/
class HtmlStyleSheet
{
public:
    void read(QStringView sheet);
    bool isEmpty() const { return m_rules.isEmpty(); }

    //! What the sheet says about \a element, in lower case, with the value of its class attribute.
    HtmlStyle style(const QString &element, QStringView classes) const;

private:
    void addRule(QStringView selectors, QStringView declarations);

    QHash<QString, HtmlStyle> m_rules;
};
