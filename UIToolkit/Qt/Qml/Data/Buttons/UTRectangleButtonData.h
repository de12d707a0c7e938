#pragma once

#include "KObject.h"
#include "UTButtonSize.h"

#include <QFont>
#include <QtQml/qqml.h>

/*! The metrics of a UTRectangleButton. */
class UTRectangleButtonData : public KObject
{
    Q_OBJECT
    //! Button size, None by default. None and unknown numbers change nothing.
    Q_PROPERTY(UTButtonSize::Size size READ size WRITE setSize NOTIFY sizeChanged FINAL)
    //! Padding at the sides, and at top and bottom, in pixels.
    Q_PROPERTY(int leftPadding READ leftPadding NOTIFY leftPaddingChanged FINAL)
    Q_PROPERTY(int topPadding READ topPadding NOTIFY topPaddingChanged FINAL)
    //! Edge of the icon's box in pixels.
    Q_PROPERTY(int iconSize READ iconSize NOTIFY iconSizeChanged FINAL)
    //! Height of a button of one line in pixels.
    Q_PROPERTY(int preferredHeight READ preferredHeight NOTIFY preferredHeightChanged FINAL)
    //! Font of the label.
    Q_PROPERTY(QFont font READ font NOTIFY fontChanged FINAL)

public:
    explicit UTRectangleButtonData(QObject *attachee = nullptr);

    static UTRectangleButtonData *qmlAttachedProperties(QObject *attachee)
    {
        return new UTRectangleButtonData(attachee);
    }

    UTButtonSize::Size size() const { return m_size; }
    int leftPadding() const { return m_leftPadding; }
    int topPadding() const { return m_topPadding; }
    int iconSize() const { return m_iconSize; }
    int preferredHeight() const { return m_preferredHeight; }
    QFont font() const { return m_font; }

    void setSize(UTButtonSize::Size size) { set(m_size, size, &UTRectangleButtonData::sizeChanged); }

public Q_SLOTS:
    //! Recomputes all outputs.
    void refresh();

Q_SIGNALS:
    void sizeChanged();
    void leftPaddingChanged();
    void topPaddingChanged();
    void iconSizeChanged();
    void preferredHeightChanged();
    void fontChanged();

private:
    QFont m_font;
    UTButtonSize::Size m_size = UTButtonSize::None;
    int m_leftPadding = 0;
    int m_topPadding = 0;
    int m_iconSize = 0;
    int m_preferredHeight = 0;
};

QML_DECLARE_TYPEINFO(UTRectangleButtonData, QML_HAS_ATTACHED_PROPERTIES)
