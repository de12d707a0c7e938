#pragma once

#include "KObject.h"

#include <QtQml/qqml.h>

/*!
 * Decides whether a tool tip shows, as an attached object of UTToolTip. All flags are false at first.
 *
 * The reason that changed last decides, on purpose: when the pointer leaves a control that still has the focus, its
 * tool tip goes. Attached to anything but a UTToolTip it warns, and works all the same.
 */
class UTToolTipData : public KObject
{
    Q_OBJECT
    //! The control has the focus.
    Q_PROPERTY(bool focused READ focused WRITE setFocused NOTIFY focusedChanged FINAL)
    //! The pointer is over the control.
    Q_PROPERTY(bool hovered READ hovered WRITE setHovered NOTIFY hoveredChanged FINAL)
    //! The control wants its tool tip for a reason of its own.
    Q_PROPERTY(bool active READ active WRITE setActive NOTIFY activeChanged FINAL)
    //! The tool tip is to be shown.
    Q_PROPERTY(bool visible READ visible WRITE setVisible NOTIFY visibleChanged FINAL)

public:
    explicit UTToolTipData(QObject *attachee = nullptr);

    static UTToolTipData *qmlAttachedProperties(QObject *attachee);

    bool focused() const { return m_focused; }
    bool hovered() const { return m_hovered; }
    bool active() const { return m_active; }
    bool visible() const { return m_visible; }

    void setFocused(bool focused);
    void setHovered(bool hovered);
    void setActive(bool active);
    void setVisible(bool visible);

Q_SIGNALS:
    void focusedChanged();
    void hoveredChanged();
    void activeChanged();
    //! Follows every change of one of the reasons, even one that leaves visible as it was.
    void visibleChanged();

private:
    void setReason(bool &reason, bool value, void (UTToolTipData::*changed)());

    bool m_focused = false;
    bool m_hovered = false;
    bool m_active = false;
    bool m_visible = false;
};

QML_DECLARE_TYPEINFO(UTToolTipData, QML_HAS_ATTACHED_PROPERTIES)
