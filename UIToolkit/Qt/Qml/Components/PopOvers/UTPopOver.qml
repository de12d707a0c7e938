/*!
    A balloon with an arrow in a window of its own, beside the item that it points at. It turns to another side of the item
    or slides along it where it would not fit on the screen.

    \qml
    UTPillButton {
        text: "Details"
        onClicked: details.showPopOver()

        UTPopOver {
            id: details
            accessibleName: "Details"
            content: Component { KText { text: "Three people are in this space." } }
        }
    }
    \endqml
*/
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Korvu 1.0
import UiElements 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

Item {
    id: control

    //! What the balloon holds. It is made anew each time and has the focus of the window.
    property Component content
    //! What the balloon points at; the screen's corner when null. The balloon closes when the item is destroyed.
    property Item targetItem: parent
    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Values of UTPopOverEnum: where on its side the arrow sits, and which side of the balloon has it.
    property int arrowAlignment: UTPopOverEnum.CenterAlignment
    property int arrowAnchor: UTPopOverEnum.Top
    //! Size class, a value of UTPopOverEnum.Size: how large arrow and corners are.
    property int popOverSize: UTPopOverEnum.Small
    //! Pixels by which the arrow is moved on its side.
    property int arrowOffset
    property bool arrowVisible: true
    //! Whether the window becomes the active one when it is shown.
    property bool showWithActive: true
    //! Index of the window's screen in the application's list of screens; found anew with each showing.
    property int activeScreenIndex
    //! Pixels kept free around the target.
    property int popOverMargin: 2
    //! Closes the balloon when nothing in it has the focus any more.
    property bool hasFocusItem
    property bool visualFocus
    //! Whether the balloon exists and shows.
    property bool active
    //! The window that this one belongs to, of any class; that of the target when null.
    property var windowParent: null
    //! The window while there is one.
    property Window windowComponentInstance: null
    //! Closes the balloon when another window gets the focus, unless that one belongs to the balloon's.
    property var automaticClose: true
    //! What assistive technology calls the window; "group" when empty.
    property var accessibleName: ""
    //! Without showWithActive, whether the window is one of the application's tools rather than above all others.
    property bool useToolWithParentFlag

    //! The window exists and is about to be shown.
    signal popUpWindowCreated(windowHandle: var)
    signal popoverWindowActiveChanged(active: bool)
    //! The balloon was closed by the Escape key.
    signal popoverEscapePressed()

    function showPopOver(): void {
        hideTimer.stop();
        active = true;
    }

    //! Closes the balloon, at once or in \a delayTime milliseconds, then only if the pointer is not over it, which
    //! \a checkMouseForDelayHide can waive.
    function hidePopOver(delayHide = false, delayTime = 500, checkMouseForDelayHide = true): void {
        if (!delayHide) {
            active = false;
            return;
        }
        hideTimer.interval = Math.min(Math.max(0, delayTime), priv.longestDelay);
        hideTimer.checksMouse = checkMouseForDelayHide;
        hideTimer.restart();
    }

    function startHidePopupTimer(): void {
        hideTimer.restart();
    }

    function cancelHidePopupTimer(): void {
        hideTimer.stop();
    }

    //! Shows what hide() has hidden.
    function show(): void {
        visible = true;
        if (windowComponentInstance) {
            windowComponentInstance.visible = true;
            windowComponentInstance.raise();
        }
    }

    //! Hides the window without closing the balloon.
    function hide(): void {
        visible = false;
        if (windowComponentInstance)
            windowComponentInstance.visible = false;
    }

    //! Follows the target, which may have moved in its window. Where that window goes, and how large the target is, the
    //! balloon follows by itself.
    function updatePosition(): void {
        const pointing = windowComponentInstance;
        if (!pointing)
            return;
        pointing["sizings"] = 0;
        pointing.UTPopOverData.targetItemRect = priv.targetRect();
    }

    visible: false

    onActiveChanged: priv.update()
    onPopOverMarginChanged: updatePosition()
    onTargetItemChanged: {
        if (targetItem)
            updatePosition();
        else if (windowComponentInstance)
            active = false;
    }
    Component.onCompleted: {
        priv.isComplete = true;
        priv.update();
    }
    Component.onDestruction: priv.destroyWindow()

    Timer {
        id: hideTimer

        property bool checksMouse: true

        interval: 500
        onTriggered: {
            if (control.windowComponentInstance && (!checksMouse || !priv.isMouseOver(control.windowComponentInstance.contentItem)))
                control.active = false;
        }
    }

    QtObject {
        id: priv

        readonly property bool isLinux: Qt.platform.os === "linux"
        // A negative interval, or one that overflows into that, stops the clock of all timers.
        readonly property int longestDelay: 0x7fffffff
        // As often as the arrow may turn, and once more.
        readonly property int mostSizings: 5
        property bool isComplete

        readonly property Component windowComponent: Component {
            Window {
                id: popOverWindow

                //! The target's, of any class: an application written in C++ may show its items in a QQuickView.
                readonly property var scene: control.targetItem?.Window.window ?? null
                property bool hasBeenActive: !control.showWithActive
                //! Whether the focus is here or in a window of this one. "active" is true in all windows that belong together,
                //! so also while the target's has the focus.
                property bool holdsFocus
                //! Since content or target last changed.
                property int sizings

                objectName: "popOverWindow"
                title: control.accessibleName || qsTr("group")
                screen: Qt.application.screens[control.activeScreenIndex] ?? null // qmllint disable missing-property
                transientParent: control.windowParent ?? scene
                flags: {
                    if (control.showWithActive) {
                        return priv.isLinux ? Qt.FramelessWindowHint | Qt.Tool
                                            : Qt.Popup | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint;
                    }
                    return control.useToolWithParentFlag ? Qt.FramelessWindowHint | Qt.Tool
                                                         : Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.ToolTip;
                }
                color: "transparent"
                x: UTPopOverData.popOverPosition.x
                y: UTPopOverData.popOverPosition.y
                width: Math.ceil(balloon.width)
                height: Math.ceil(balloon.height)

                UTPopOverData.arrowAlignment: control.arrowAlignment
                UTPopOverData.arrowAnchor: control.arrowAnchor
                UTPopOverData.arrowOffset: control.arrowOffset
                UTPopOverData.arrowVisible: control.arrowVisible
                UTPopOverData.size: control.popOverSize

                // A side that the arrow turns to takes its room, which may make it turn again. With no room anywhere that
                // would have no end.
                function takeSize(): void {
                    if (++sizings <= priv.mostSizings)
                        UTPopOverData.popOverSize = Qt.size(Math.ceil(balloon.width), Math.ceil(balloon.height));
                }

                onSceneChanged: control.updatePosition()
                onActiveChanged: hasBeenActive = true
                onHoldsFocusChanged: control.popoverWindowActiveChanged(holdsFocus)
                onClosing: control.active = false

                Connections {
                    target: popOverWindow.scene

                    function onXChanged(): void { control.updatePosition(); }
                    function onYChanged(): void { control.updatePosition(); }
                    function onVisibleChanged(): void {
                        // The property would not be heeded, for this window belongs to a hidden one.
                        if (!popOverWindow.scene.visible)
                            popOverWindow.hide();
                        else if (control.visible)
                            popOverWindow.show();
                    }
                }
                Connections {
                    target: control.targetItem

                    function onWidthChanged(): void { control.updatePosition(); }
                    function onHeightChanged(): void { control.updatePosition(); }
                }
                Connections {
                    target: App

                    function onFocusWindowChanged(focusWindow: var): void {
                        popOverWindow.holdsFocus = Boolean(focusWindow) && (focusWindow === popOverWindow || UIToolKitUtils.isAncestorOf(popOverWindow, focusWindow));
                        if (!control.automaticClose)
                            return;
                        if (popOverWindow.holdsFocus && !(control.hasFocusItem && !popOverWindow.activeFocusItem))
                            focusLoss.stop();
                        else if (focusWindow && popOverWindow.hasBeenActive && !(focusWindow === popOverWindow.scene && priv.isMouseOver(control.targetItem)))
                            control.active = false;
                        else
                            focusLoss.restart();
                    }
                }

                // Between two windows the focus may be nowhere for a moment, and on its way to this one it may pass through
                // others. Going to the target by a click, it comes before the click, which may be meant to close the balloon
                // and would open it anew.
                Timer {
                    id: focusLoss

                    interval: popOverWindow.hasBeenActive ? 100 : 1000
                    onTriggered: {
                        if (App.isMousePressed())
                            restart();
                        else
                            control.active = false;
                    }
                }

                KBalloon {
                    id: balloon

                    readonly property int horizontalArrow: arrowAnchor === UTPopOverEnum.Left || arrowAnchor === UTPopOverEnum.Right ? arrowSize : 0
                    readonly property int verticalArrow: arrowAnchor === UTPopOverEnum.Top || arrowAnchor === UTPopOverEnum.Bottom ? arrowSize : 0

                    width: Math.max(1, contentScope.width + horizontalArrow)
                    height: Math.max(1, contentScope.height + verticalArrow)
                    arrowAnchor: popOverWindow.UTPopOverData.arrowAnchor
                    arrowAlignment: popOverWindow.UTPopOverData.arrowAlignment
                    arrowOffset: popOverWindow.UTPopOverData.arrowOffset
                    arrowSize: popOverWindow.UTPopOverData.arrowSize
                    radius: popOverWindow.UTPopOverData.radius
                    backgroundColor: (ThemeManager.globalTheme, App.getColorSet("popover-primary-background", control.themeType).normal)
                    borderColor: (ThemeManager.globalTheme, App.getColorSet("list-header-outline-secondary", control.themeType).normal)

                    // Both change in one layout; the window is placed once.
                    onWidthChanged: Qt.callLater(popOverWindow.takeSize)
                    onHeightChanged: Qt.callLater(popOverWindow.takeSize)

                    Keys.onEscapePressed: {
                        control.active = false;
                        control.popoverEscapePressed();
                    }

                    // Not a Loader, which on Qt 6.4 refuses a component that is bound to its file.
                    FocusScope {
                        id: contentScope

                        readonly property Component component: control.content
                        property Item item: null

                        function load(): void {
                            item?.destroy();
                            item = component?.createObject(contentScope) as Item ?? null;
                            if (item)
                                item.focus = true;
                            Qt.callLater(popOverWindow.takeSize);
                        }

                        // Another window does not inherit it.
                        LayoutMirroring.enabled: control.LayoutMirroring.enabled
                        LayoutMirroring.childrenInherit: true

                        x: balloon.arrowAnchor === UTPopOverEnum.Left ? balloon.arrowSize : 0
                        y: balloon.arrowAnchor === UTPopOverEnum.Top ? balloon.arrowSize : 0
                        width: item?.width ?? 0
                        height: item?.height ?? 0
                        focus: true

                        onComponentChanged: load()
                        onWidthChanged: popOverWindow.sizings = 0
                        onHeightChanged: popOverWindow.sizings = 0
                    }
                }
            }
        }

        function targetRect(): rect {
            const target = control.targetItem;
            if (!target)
                return Qt.rect(0, 0, 0, 0);
            const margin = control.popOverMargin;
            const origin = target.mapToGlobal(0, 0);
            return Qt.rect(origin.x - margin, origin.y - margin, target.width + 2 * margin, target.height + 2 * margin);
        }

        //! Without any, to make a window would end the application.
        function hasScreen(): bool {
            return Qt.application.screens.length > 0; // qmllint disable missing-property
        }

        function isMouseOver(item: Item): bool {
            if (!item)
                return false;
            const origin = item.mapToGlobal(0, 0);
            const mouse = Utils.getMousePos();
            return mouse.x > origin.x && mouse.x < origin.x + item.width && mouse.y > origin.y && mouse.y < origin.y + item.height;
        }

        function update(): void {
            if (!isComplete)
                return;
            control.visible = control.active;
            if (control.active && !control.windowComponentInstance)
                createWindow();
            else if (!control.active)
                destroyWindow();
        }

        function createWindow(): void {
            if (!hasScreen())
                return;
            const created = windowComponent.createObject(null) as Window;
            control.windowComponentInstance = created;
            const rect = targetRect();
            created.UTPopOverData.targetItemRect = rect;
            control.popUpWindowCreated(created);
            // Whoever was told of it may have closed it.
            if (control.windowComponentInstance !== created)
                return;
            control.activeScreenIndex = UIToolKitUtils.getScreenIndexFromPoint(Qt.point(rect.x + rect.width / 2, rect.y + rect.height / 2));
            showPlaced(created);
            if (control.showWithActive && isLinux) {
                created.raise();
                created.requestActivate();
            }
        }

        // At its place from the first moment, which the user would see.
        function showPlaced(opened: var): void {
            opened.takeSize();
            opened.visible = true;
        }

        function destroyWindow(): void {
            const closing = control.windowComponentInstance;
            control.windowComponentInstance = null;
            if (closing)
                retire(closing);
        }

        function retire(closing: var): void {
            // Back to where it was opened from, unless the focus has gone elsewhere by itself; while the focus is still
            // here to be given away.
            if (closing.holdsFocus && control.targetItem?.Window.window)
                control.targetItem.Window.window.requestActivate();
            closing.visible = false;
            closing.destroy();
        }
    }
}
