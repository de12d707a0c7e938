/*!
    A tool tip that brings its own window, shown when its control has been active for 800 ms; for use inside the library
    only. Make it when it is first active, so that it costs nothing before.

    \qml
    ToolTipWithWindow { tooltipText: control.tooltip; active: control.hovered && control.tooltip.length > 0 }
    \endqml
*/
pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/ToolTipManager.js" as ToolTipManager

Item {
    id: control

    property alias tooltipText: toolTip.tooltipText
    //! Shows a balloon with an arrow instead of a plain rectangle.
    property bool isTooltipCustom
    property bool active
    property bool fillParent: true
    //! The window, while there is one.
    property Window tooltipItem: null

    //! Called by ToolTipManager when another tool tip takes over.
    function hideManagedTooltip(): void {
        priv.destroyWindow();
    }

    anchors.fill: fillParent ? parent : undefined

    onActiveChanged: {
        if (active) {
            ToolTipManager.setCurrentOwner(control);
        } else {
            ToolTipManager.clearCurrentOwner(control);
            priv.destroyWindow();
        }
    }
    Component.onDestruction: {
        ToolTipManager.clearCurrentOwner(control);
        priv.destroyWindow();
    }

    UTToolTip {
        id: toolTip

        anchors.fill: parent
        managedByToolTipManager: false
        tooltipStyle: control.isTooltipCustom ? UTTooltipEnum.Customized : UTTooltipEnum.Native
    }
    Timer {
        id: startDelay

        interval: priv.delayToStartTime
        running: control.active
        onTriggered: {
            // Without any screen, to make a window would end the application.
            const hasScreen = Qt.application.screens.length > 0; // qmllint disable missing-property
            if (control.active && ToolTipManager.canShow(control) && !control.tooltipItem && hasScreen)
                control.tooltipItem = windowComponent.createObject(null) as Window;
        }
    }
    Component {
        id: windowComponent

        Window {
            id: window

            // Lets the pointer through: where there is no room beside the control the tool tip covers it, and would
            // take the hover from it.
            flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowTransparentForInput
            color: "transparent"
            transientParent: control.Window.window
            screen: Qt.application.screens[priv.activeScreenIndex] ?? null // qmllint disable missing-property
            width: Math.max(1, Math.ceil(container.width))
            height: Math.max(1, Math.ceil(container.height))

            Component.onCompleted: {
                toolTip.tooltipWindow = window;
                toolTip.active = true;
                priv.activeScreenIndex = UIToolKitUtils.getScreenIndexFromPoint(control.mapToGlobal(control.width / 2, control.height / 2));
            }
            Component.onDestruction: toolTip.active = false

            Item {
                id: container

                width: childrenRect.width
                height: childrenRect.height
            }
            Connections {
                target: window.transientParent

                function onVisibleChanged(): void {
                    priv.destroyWindow();
                }
            }
        }
    }

    QtObject {
        id: priv

        readonly property int delayToStartTime: 800
        property int activeScreenIndex

        function destroyWindow(): void {
            startDelay.stop();
            if (!control.tooltipItem)
                return;
            toolTip.active = false;
            control.tooltipItem.destroy();
            control.tooltipItem = null;
        }
    }
}
