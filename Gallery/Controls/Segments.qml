/*!
    One choice of several, side by side and wrapping where there is no room. One stop of the Tab key; arrows move the
    choice. To be replaced by the library's own tab bar and radio buttons when there are some.
*/
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import UIToolkitQml 1.0
import Gallery

KFrame {
    id: control

    property list<string> texts
    //! Icons shown in place of the texts, which then are names for assistive technology only.
    property list<string> icons
    property int currentIndex: 0
    //! What the choice is about, for assistive technology.
    property string name
    property int itemRole: Accessible.RadioButton
    //! Shares the width among the segments.
    property bool isStretched: false
    readonly property string currentText: texts[currentIndex] ?? ""

    signal activated(index: int)

    function choose(index: int): void {
        const count = texts.length;
        const chosen = (index + count) % count;
        (repeater.itemAt(chosen) as T.AbstractButton).forceActiveFocus(Qt.TabFocusReason);
        currentIndex = chosen;
        activated(chosen);
    }

    implicitWidth: priv.naturalWidth + 2 * priv.inset
    implicitHeight: flow.height + 2 * priv.inset
    radius: Metrics.smallRadius + priv.inset
    backgroundColorSetName: "panel-tertiary-background"
    borderColorSetName: "wx-default-border"

    Accessible.role: itemRole === Accessible.PageTab ? Accessible.PageTabList : Accessible.Grouping
    Accessible.name: name

    Flow {
        id: flow

        x: priv.inset
        y: priv.inset
        width: control.width - 2 * priv.inset
        spacing: priv.gap

        Repeater {
            id: repeater

            model: control.texts

            T.AbstractButton {
                id: segment

                required property int index
                required property string modelData
                readonly property string iconName: control.icons[index] ?? ""

                implicitWidth: Math.max(Metrics.rowHeight, iconName.length > 0 ? 0 : label.implicitWidth + 2 * priv.textPadding)
                width: control.isStretched
                    ? Math.floor((flow.width - (control.texts.length - 1) * priv.gap) / control.texts.length)
                    : Math.min(implicitWidth, flow.width)
                height: Math.max(Metrics.rowHeight - 2 * priv.inset, label.implicitHeight + Metrics.small)
                text: modelData
                hoverEnabled: true
                checkable: true
                autoExclusive: true
                checked: index === control.currentIndex
                focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

                onClicked: control.choose(index)

                Keys.onLeftPressed: control.choose(index + (mirrored ? 1 : -1))
                Keys.onRightPressed: control.choose(index + (mirrored ? -1 : 1))
                Keys.onUpPressed: control.choose(index - 1)
                Keys.onDownPressed: control.choose(index + 1)

                background: KRectangle {
                    radius: Metrics.smallRadius
                    controlsTarget: segment
                    backgroundColorSetName: segment.checked ? "tab-active-background" : "tab-inactive-background"
                }
                contentItem: Item {
                    KSvgIcon {
                        anchors.centerIn: parent
                        visible: svgName.length > 0
                        height: Metrics.iconSize
                        svgName: segment.iconName
                        controlsTarget: segment
                        svgColorSetName: priv.inkOf(segment)
                    }
                    GalleryText {
                        id: label

                        anchors.centerIn: parent
                        width: Math.min(implicitWidth, parent.width)
                        visible: segment.iconName.length === 0
                        text: segment.text
                        elide: Text.ElideRight
                        font: FontConstants.bodySecondarySemibold
                        controlsTarget: segment
                        textColorSetName: priv.inkOf(segment)
                        Accessible.ignored: true
                    }
                }

                FocusRing {}

                Accessible.role: control.itemRole
                Accessible.name: text
                Accessible.checkable: control.itemRole === Accessible.RadioButton
                Accessible.checked: control.itemRole === Accessible.RadioButton && checked
                Accessible.selectable: control.itemRole === Accessible.PageTab
                Accessible.selected: control.itemRole === Accessible.PageTab && checked
                Accessible.onPressAction: click()
            }
        }
    }

    QtObject {
        id: priv

        readonly property int inset: 2
        readonly property int gap: 2
        readonly property int textPadding: 10
        readonly property real naturalWidth: {
            let sum = (repeater.count - 1) * gap;
            for (let i = 0; i < repeater.count; ++i)
                sum += repeater.itemAt(i)?.implicitWidth ?? 0;
            return sum;
        }

        function inkOf(segment: T.AbstractButton): string {
            return segment.checked ? "tab-active-text" : "tab-inactive-text";
        }
    }
}
