#pragma once

#include "PillButtonData.h"

/*! What a UTMultilinePillButton looks like, from its style, size and state. */
class UTMultilinePillButtonData : public PillButtonData
{
    Q_OBJECT
    //! The frame around the name of the line: radius of its corners, width of its border and padding, in pixels.
    Q_PROPERTY(int lineDesignatorBorderRadius READ lineDesignatorBorderRadius WRITE setLineDesignatorBorderRadius NOTIFY
                   lineDesignatorBorderRadiusChanged FINAL)
    Q_PROPERTY(int lineDesignatorBorderThickness READ lineDesignatorBorderThickness WRITE
                   setLineDesignatorBorderThickness NOTIFY lineDesignatorBorderThicknessChanged FINAL)
    Q_PROPERTY(int lineDesignatorPadding READ lineDesignatorPadding WRITE setLineDesignatorPadding NOTIFY
                   lineDesignatorPaddingChanged FINAL)

public:
    explicit UTMultilinePillButtonData(QObject *attachee = nullptr)
        : PillButtonData(attachee, "UTMultilinePillButton")
    {
    }

    static UTMultilinePillButtonData *qmlAttachedProperties(QObject *attachee)
    {
        return new UTMultilinePillButtonData(attachee);
    }

    int lineDesignatorBorderRadius() const { return m_lineDesignatorBorderRadius; }
    int lineDesignatorBorderThickness() const { return m_lineDesignatorBorderThickness; }
    int lineDesignatorPadding() const { return m_lineDesignatorPadding; }

    void setLineDesignatorBorderRadius(int radius)
    {
        set(m_lineDesignatorBorderRadius, radius, &UTMultilinePillButtonData::lineDesignatorBorderRadiusChanged);
    }
    void setLineDesignatorBorderThickness(int width)
    {
        set(m_lineDesignatorBorderThickness, width, &UTMultilinePillButtonData::lineDesignatorBorderThicknessChanged);
    }
    void setLineDesignatorPadding(int padding)
    {
        set(m_lineDesignatorPadding, padding, &UTMultilinePillButtonData::lineDesignatorPaddingChanged);
    }

Q_SIGNALS:
    void lineDesignatorBorderRadiusChanged();
    void lineDesignatorBorderThicknessChanged();
    void lineDesignatorPaddingChanged();

protected:
    void updateSize() override;

private:
    int m_lineDesignatorBorderRadius = 0;
    int m_lineDesignatorBorderThickness = 0;
    int m_lineDesignatorPadding = 0;
};

QML_DECLARE_TYPEINFO(UTMultilinePillButtonData, QML_HAS_ATTACHED_PROPERTIES)
