#pragma once

#include "IUTButtonData.h"

#include <QFont>

/*! The metrics that pills of one line and of several have in common. */
class PillButtonData : public IUTButtonData
{
    Q_OBJECT
    //! Font of the label.
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged FINAL)
    //! Padding in pixels.
    Q_PROPERTY(int leftPadding READ leftPadding WRITE setLeftPadding NOTIFY leftPaddingChanged FINAL)
    Q_PROPERTY(int rightPadding READ rightPadding WRITE setRightPadding NOTIFY rightPaddingChanged FINAL)
    //! Pixels between an icon and the label.
    Q_PROPERTY(int spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)

public:
    QFont font() const { return m_font; }
    int leftPadding() const { return m_leftPadding; }
    int rightPadding() const { return m_rightPadding; }
    int spacing() const { return m_spacing; }

    void setFont(const QFont &font) { set(m_font, font, &PillButtonData::fontChanged); }
    void setLeftPadding(int padding) { set(m_leftPadding, padding, &PillButtonData::leftPaddingChanged); }
    void setRightPadding(int padding) { set(m_rightPadding, padding, &PillButtonData::rightPaddingChanged); }
    void setSpacing(int spacing) { set(m_spacing, spacing, &PillButtonData::spacingChanged); }

Q_SIGNALS:
    void fontChanged();
    void leftPaddingChanged();
    void rightPaddingChanged();
    void spacingChanged();

protected:
    PillButtonData(QObject *attachee, const char *component);

    void paintLabel() override;
    void updateSize() override;

private:
    QFont m_font;
    int m_leftPadding = 0;
    int m_rightPadding = 0;
    int m_spacing = 0;
};
