#pragma once

#include "KObject.h"

#include <QPointer>

#include <array>

/*!
 * The interaction state of one item, as its data objects see it.
 *
 * A component binds the five flags to its own states, or names itself as the source of all of them,
 * and hands the object to its data object.
 * All flags are false at first. Each has its own change signal; eventDataChanged() follows every
 * change one event-loop turn later, so that listeners see the flags as they have settled.
 */
class UTEventData : public KObject
{
    Q_OBJECT
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged FINAL)
    Q_PROPERTY(bool hovered READ hovered WRITE setHovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(bool activeFocus READ activeFocus WRITE setActiveFocus NOTIFY activeFocusChanged FINAL)
    Q_PROPERTY(bool checked READ checked WRITE setChecked NOTIFY checkedChanged FINAL)
    Q_PROPERTY(bool pressed READ pressed WRITE setPressed NOTIFY pressedChanged FINAL)
    //! The item whose properties of the same names the flags follow, in place of a binding on each; null by default.
    //! A property that it lacks leaves its flag as it is.
    Q_PROPERTY(QObject *source READ source WRITE setSource NOTIFY sourceChanged FINAL)
    //! Whether the source is the item that the object belongs to; false by default. Cheaper than a binding on source.
    Q_PROPERTY(bool followsItem READ followsItem WRITE setFollowsItem NOTIFY followsItemChanged FINAL)

public:
    static constexpr size_t FlagCount = 5;

    explicit UTEventData(QObject *parent = nullptr);

    bool enabled() const { return m_enabled; }
    bool hovered() const { return m_hovered; }
    bool activeFocus() const { return m_activeFocus; }
    bool checked() const { return m_checked; }
    bool pressed() const { return m_pressed; }
    QObject *source() const { return m_source; }
    bool followsItem() const { return m_followsItem; }

    void setEnabled(bool enabled);
    void setHovered(bool hovered);
    void setActiveFocus(bool activeFocus);
    void setChecked(bool checked);
    void setPressed(bool pressed);
    void setSource(QObject *source);
    void setFollowsItem(bool followsItem);

Q_SIGNALS:
    void enabledChanged();
    void hoveredChanged();
    void activeFocusChanged();
    void checkedChanged();
    void pressedChanged();
    void sourceChanged();
    void followsItemChanged();
    void eventDataChanged();

private Q_SLOTS:
    void readSource();

private:
    void setFlag(bool &flag, bool value, void (UTEventData::*changed)());

    QPointer<QObject> m_source;
    // Where the source has its flags; -1 for nowhere, and whether it is the plain bool that needs no variant to be read.
    std::array<int, FlagCount> m_sourceProperties = {};
    std::array<bool, FlagCount> m_isPlainBool = {};
    bool m_followsItem = false;
    bool m_enabled = false;
    bool m_hovered = false;
    bool m_activeFocus = false;
    bool m_checked = false;
    bool m_pressed = false;
};
