#pragma once

#include "KObject.h"

#include <QColor>
#include <QFont>
#include <QtQml/qqml.h>

/*!
 * The text of a UTBlockButton as it is shown and as it is spoken.
 *
 * The original may be anything that people write: plain or rich, with emojis, of many lines or endless. Its markup
 * and empty lines go; its first line is the title.
 */
class UTBlockButtonData : public KObject
{
    Q_OBJECT
    //! The text, plain or rich. Of more than 4,000 characters the beginning counts.
    Q_PROPERTY(QString originalText READ originalText WRITE setOriginalText NOTIFY originalTextChanged FINAL)
    //! Styled text of at most 400 characters: the title in the accent colour, the other lines in the secondary colour,
    //! emojis as pictures. Nothing in the original text can add markup of its own.
    Q_PROPERTY(QString displayText READ displayText NOTIFY displayTextChanged FINAL)
    //! The same in one line of plain text.
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)
    //! The font that the text is shown in; decides the size of the emojis.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged FINAL)
    //! Colours of the title and of the other lines; an invalid one, as at first, leaves the colour to the viewer.
    Q_PROPERTY(QColor accentTextColor READ accentTextColor WRITE setAccentTextColor NOTIFY accentTextColorChanged FINAL)
    Q_PROPERTY(QColor secondaryTextColor READ secondaryTextColor WRITE setSecondaryTextColor NOTIFY
                   secondaryTextColorChanged FINAL)

public:
    explicit UTBlockButtonData(QObject *attachee = nullptr);

    static UTBlockButtonData *qmlAttachedProperties(QObject *attachee) { return new UTBlockButtonData(attachee); }

    QString originalText() const { return m_originalText; }
    QString displayText() const { return m_displayText; }
    QString accessibleText() const { return m_accessibleText; }
    QFont font() const { return m_font; }
    QColor accentTextColor() const { return m_accentTextColor; }
    QColor secondaryTextColor() const { return m_secondaryTextColor; }

    void setOriginalText(const QString &text) { set(m_originalText, text, &UTBlockButtonData::originalTextChanged); }
    void setFont(const QFont &font) { set(m_font, font, &UTBlockButtonData::fontChanged); }
    void setAccentTextColor(const QColor &color)
    {
        set(m_accentTextColor, color, &UTBlockButtonData::accentTextColorChanged);
    }
    void setSecondaryTextColor(const QColor &color)
    {
        set(m_secondaryTextColor, color, &UTBlockButtonData::secondaryTextColorChanged);
    }

Q_SIGNALS:
    void originalTextChanged();
    void displayTextChanged();
    void accessibleTextChanged();
    void fontChanged();
    void accentTextColorChanged();
    void secondaryTextColorChanged();

private:
    void readOriginal();
    void updateDisplayText();

    QStringList m_lines;
    QString m_originalText;
    QString m_displayText;
    QString m_accessibleText;
    QFont m_font;
    QColor m_accentTextColor;
    QColor m_secondaryTextColor;
};

QML_DECLARE_TYPEINFO(UTBlockButtonData, QML_HAS_ATTACHED_PROPERTIES)
