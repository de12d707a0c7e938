#pragma once

#include "BoxData.h"
#include "UTChipStyle.h"

/*! What a UTChip looks like, from its style and state. There are no colours for icons: those take that of the text. */
class UTChipData : public BoxData
{
    Q_OBJECT
    //! The outline, None by default. An unknown number is Outline_Default.
    Q_PROPERTY(UTChipStyle::Style style READ style WRITE setStyle NOTIFY styleChanged FINAL)
    //! Height of the chip in pixels.
    Q_PROPERTY(int height READ height WRITE setHeight NOTIFY heightChanged FINAL)

public:
    explicit UTChipData(QObject *attachee = nullptr);

    static UTChipData *qmlAttachedProperties(QObject *attachee) { return new UTChipData(attachee); }

    UTChipStyle::Style style() const { return m_style; }
    int height() const { return m_height; }

    void setStyle(UTChipStyle::Style style) { set(m_style, style, &UTChipData::styleChanged); }
    void setHeight(int height) { set(m_height, height, &UTChipData::heightChanged); }

public Q_SLOTS:
    //! Recomputes all outputs. Without a style nothing changes, except in high contrast.
    void refresh();

Q_SIGNALS:
    void styleChanged();
    void heightChanged();
    //! The inputs changed, the outputs are out of date.
    void chipDataChanged();

private:
    UTChipStyle::Style m_style = UTChipStyle::None;
    int m_height = 0;
};

QML_DECLARE_TYPEINFO(UTChipData, QML_HAS_ATTACHED_PROPERTIES)
