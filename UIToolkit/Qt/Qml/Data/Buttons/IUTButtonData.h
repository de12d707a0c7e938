#pragma once

#include "BoxData.h"
#include "UTButtonSize.h"
#include "UTButtonStyle.h"

/*!
 * The base of the data objects that turn a button's style, size and state into colours and metrics.
 *
 * The colour step is the same for all of them; each subclass adds the metrics of its sizes. An object
 * on any other component than its own stays inert: its outputs keep their first values.
 */
class IUTButtonData : public BoxData
{
    Q_OBJECT
    //! Button style, None by default. An unknown number has no colours.
    Q_PROPERTY(UTButtonStyle::Style style READ style WRITE setStyle NOTIFY styleChanged FINAL)
    //! Button size, None by default. An unknown number changes nothing.
    Q_PROPERTY(UTButtonSize::Size size READ size WRITE setSize NOTIFY sizeChanged FINAL)
    //! Colour set of the icon in place of the style's; empty (the default) for the style's.
    Q_PROPERTY(
        QString iconColorSetName READ iconColorSetName WRITE setIconColorSetName NOTIFY iconColorSetNameChanged FINAL)
    //! Colour set of the right icon in place of the icon's; empty (the default) for the icon's.
    Q_PROPERTY(QString rightIconColorSetName READ rightIconColorSetName WRITE setRightIconColorSetName NOTIFY
                   rightIconColorSetNameChanged FINAL)
    //! The colour, as text, of label and icons in the style Customized. Takes effect with the next refresh.
    Q_PROPERTY(QString iconColorCustomized READ iconColorCustomized WRITE setIconColorCustomized NOTIFY
                   iconColorCustomizedChanged FINAL)
    //! Height of the button in pixels.
    Q_PROPERTY(int height READ height WRITE setHeight NOTIFY heightChanged FINAL)

public:
    UTButtonStyle::Style style() const { return m_style; }
    UTButtonSize::Size size() const { return m_size; }
    QString iconColorSetName() const { return m_iconColorSetName; }
    QString rightIconColorSetName() const { return m_rightIconColorSetName; }
    QString iconColorCustomized() const { return m_iconColorCustomized; }
    int height() const { return m_height; }

    void setThemeType(const QString &themeType) override;
    void setStyle(UTButtonStyle::Style style) { set(m_style, style, &IUTButtonData::styleChanged); }
    void setSize(UTButtonSize::Size size) { set(m_size, size, &IUTButtonData::sizeChanged); }
    void setIconColorSetName(const QString &name)
    {
        set(m_iconColorSetName, name, &IUTButtonData::iconColorSetNameChanged);
    }
    void setRightIconColorSetName(const QString &name)
    {
        set(m_rightIconColorSetName, name, &IUTButtonData::rightIconColorSetNameChanged);
    }
    void setIconColorCustomized(const QString &color)
    {
        set(m_iconColorCustomized, color, &IUTButtonData::iconColorCustomizedChanged);
    }
    void setHeight(int height) { set(m_height, height, &IUTButtonData::heightChanged); }

public Q_SLOTS:
    //! Recomputes all outputs.
    void refresh();

Q_SIGNALS:
    void styleChanged();
    void sizeChanged();
    void iconColorSetNameChanged();
    void rightIconColorSetNameChanged();
    void iconColorCustomizedChanged();
    void heightChanged();
    //! The inputs changed, the outputs are out of date.
    void buttonDataChanged();

protected:
    //! Belongs to \a attachee; inert, after a warning, unless that is a \a component.
    IUTButtonData(QObject *attachee, const char *component);

    //! Sets the metrics of size().
    virtual void updateSize() = 0;

private:
    void updateTokens();
    void setColor(Slot slot, bool customized, const QString &colorOrToken);
    void setCustomized(Slot slot, bool customized);

    QString m_iconColorSetName;
    QString m_rightIconColorSetName;
    QString m_iconColorCustomized;
    UTButtonStyle::Style m_style = UTButtonStyle::None;
    UTButtonSize::Size m_size = UTButtonSize::None;
    int m_height = 0;
};
