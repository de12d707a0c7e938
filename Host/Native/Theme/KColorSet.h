#pragma once

#include "korvuui_export.h"

#include <QColor>
#include <QMetaType>
#include <QObject>
#include <QString>

#include <array>

/*!
    A named record of six colours, one for each interaction state. A default-constructed set has an
    empty name and six invalid colours.
*/
class KORVUUI_EXPORT KColorSet
{
    Q_GADGET
    Q_PROPERTY(QString name READ name WRITE setName FINAL)
    Q_PROPERTY(QColor normal READ normal WRITE setNormal FINAL)
    Q_PROPERTY(QColor hovered READ hovered WRITE setHovered FINAL)
    Q_PROPERTY(QColor pressed READ pressed WRITE setPressed FINAL)
    Q_PROPERTY(QColor disabled READ disabled WRITE setDisabled FINAL)
    Q_PROPERTY(QColor focused READ focused WRITE setFocused FINAL)
    Q_PROPERTY(QColor checked READ checked WRITE setChecked FINAL)
    Q_PROPERTY(bool isValid READ isValid FINAL)

public:
    //! Position of each state's colour in the record.
    enum State { Normal, Hovered, Pressed, Disabled, Focused, Checked };
    static constexpr int StateCount = Checked + 1;
    using Colors = std::array<QColor, StateCount>;

    KColorSet() = default;
    KColorSet(const QString &name, const Colors &colors);

    const QString &name() const { return m_name; }
    const QColor &normal() const { return m_colors[Normal]; }
    const QColor &hovered() const { return m_colors[Hovered]; }
    const QColor &pressed() const { return m_colors[Pressed]; }
    const QColor &disabled() const { return m_colors[Disabled]; }
    const QColor &focused() const { return m_colors[Focused]; }
    const QColor &checked() const { return m_colors[Checked]; }

    void setName(const QString &name) { m_name = name; }
    void setNormal(const QColor &color) { m_colors[Normal] = color; }
    void setHovered(const QColor &color) { m_colors[Hovered] = color; }
    void setPressed(const QColor &color) { m_colors[Pressed] = color; }
    void setDisabled(const QColor &color) { m_colors[Disabled] = color; }
    void setFocused(const QColor &color) { m_colors[Focused] = color; }
    void setChecked(const QColor &color) { m_colors[Checked] = color; }

    //! True when the name is not empty and all six colours are valid.
    bool isValid() const;

    const QColor &color(State state) const { return m_colors[state]; }

    /*!
        The colour of the state called "normal", "hovered", "pressed", "disabled", "focused" or
        "checked" (case-sensitive). Any other name is warned about and gives an invalid colour.
    */
    Q_INVOKABLE QColor color(const QString &state) const;

    friend bool operator==(const KColorSet &a, const KColorSet &b)
    {
        return a.m_name == b.m_name && a.m_colors == b.m_colors;
    }
    friend bool operator!=(const KColorSet &a, const KColorSet &b) { return !(a == b); }

private:
    QString m_name;
    Colors m_colors;
};

Q_DECLARE_METATYPE(KColorSet)
