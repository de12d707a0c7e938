/*!
    The tool tip of a control: a text beside it, in a window of its own that its user supplies. It lies over the control,
    and costs little until it shows.

    \qml
    UTToolTip {
        anchors.fill: parent
        tooltipStyle: UTTooltipEnum.Customized
        tooltipText: "Mute"
        hovered: control.hovered
        focused: control.activeFocus
        onShowToolTip: tooltipWindow = ToolTipWindowManager.getWindow(this, true)
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ToolTipManager.js" as ToolTipManager

Item {
    id: control

    //! UTTooltipEnum.Native or Customized.
    property int tooltipStyle: UTTooltipEnum.Native
    // The reasons to show it. The one that changed last decides.
    property bool active
    property bool hovered
    property bool focused
    //! The side of the tool tip that faces the control, a UTTooltipEnum.ArrowAnchor; another one where there is no room.
    property int arrowAnchor: UTTooltipEnum.Top
    //! A UTTooltipEnum.ArrowAlignment.
    property int arrowAlignment: UTTooltipEnum.CenterAlignment
    //! Pixels.
    property int arrowOffset
    //! Of the text, in pixels.
    property int maximumWidth: 308
    //! Without limit, which an int says as -1.
    property int maximumLineCount: Number.MAX_SAFE_INTEGER
    //! Kept free around the control, in pixels.
    property int popOverMargin: tooltipStyle === UTTooltipEnum.Native ? 4 : 2
    property string tooltipText
    //! Milliseconds after which a tool tip that shows hides by itself; 0 for never.
    property int toggleOffTime
    //! Milliseconds to wait before showing.
    property int delayToStartTime
    //! Milliseconds between two looks at whether the control has moved.
    property int updatePositionTime: 1000
    property bool tooltipVisible: UTToolTipData.visible
    //! Where the control's top left corner was, in global coordinates, when the tool tip was last shown.
    property point lastRecordedPosition: Qt.point(0, 0)
    //! The window to show it in, of any class. The first child of its content item takes the tool tip. It stays its
    //! owner's: the tool tip shows, moves and hides it.
    property var tooltipWindow: null
    //! The NativeToolTip or CustomToolTip, while there is one.
    property Item tooltipItem: null
    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Whether it counts among the tool tips of which one at a time shows.
    property bool managedByToolTipManager: true
    property bool isDestroying
    // Changes that a change causes do not count.
    property bool _toggleInProgress
    property bool _displayInProgress

    //! The tool tip is about to show: the time to set tooltipWindow.
    signal showToolTip()
    signal aboutToHide()

    //! Shows the tool tip now if there is a reason to and nothing in the way, or hides it.
    function displayToolTip(show: bool): void {
        if (_displayInProgress)
            return;
        _displayInProgress = true;
        try {
            if (show)
                priv.show();
            else
                priv.hide();
        } finally {
            _displayInProgress = false;
        }
    }

    //! Makes tooltipItem, or hands it the text of now.
    function createTooltip(): void {
        updatePosition();
        if (tooltipItem) {
            tooltipItem["tooltipText"] = tooltipText;
            return;
        }
        clearTooltip();
        tooltipItem = priv.createItem();
    }

    //! Takes everything out of the window.
    function clearTooltip(): void {
        if (!tooltipExist())
            return;
        const items = priv.container().children;
        for (let i = items.length - 1; i >= 0; --i)
            priv.discard(items[i]);
    }

    function toggleToolTip(visible: bool): void {
        if (_toggleInProgress)
            return;
        _toggleInProgress = true;
        try {
            if (!visible) {
                displayToolTip(false);
            } else if (delayToStartTime === 0) {
                if (tooltipWindow)
                    tooltipWindow.visible = false;
                Qt.callLater(priv.showLater);
            }
        } finally {
            _toggleInProgress = false;
        }
    }

    function toggle(): void {
        displayToolTip(!tooltipVisible);
    }

    //! Whether there is a window that can take the tool tip.
    function tooltipExist(): bool {
        return Boolean(tooltipWindow?.contentItem?.children.length);
    }

    //! Tells the placement where the control is.
    function updatePosition(): void {
        const position = mapToGlobal(0, 0);
        UTPopOverData.targetItemRect = Qt.rect(position.x - popOverMargin, position.y - popOverMargin,
                                               width + 2 * popOverMargin, height + 2 * popOverMargin);
    }

    //! Called by ToolTipManager when another tool tip takes over.
    function hideManagedTooltip(): void {
        if (priv.timers)
            priv.timers.stopStartDelay();
        UTToolTipData.visible = false;
        displayToolTip(false);
    }

    UTToolTipData.hovered: hovered
    UTToolTipData.focused: focused
    UTToolTipData.active: active
    UTPopOverData.arrowAnchor: arrowAnchor
    UTPopOverData.arrowAlignment: arrowAlignment
    UTPopOverData.arrowOffset: arrowOffset
    UTPopOverData.size: UTPopOverEnum.Small

    UTToolTipData.onVisibleChanged: {
        if (control._toggleInProgress || control._displayInProgress)
            return;
        const isWanted = control.UTToolTipData.visible;
        if (isWanted)
            priv.needTimers();
        if (control.managedByToolTipManager) {
            if (isWanted)
                ToolTipManager.setCurrentOwner(control);
            else
                ToolTipManager.clearCurrentOwner(control);
        }
        control.toggleToolTip(isWanted);
    }
    onTooltipTextChanged: {
        if (!UTToolTipData.visible)
            return;
        if (tooltipText.length === 0)
            clearTooltip();
        else if (tooltipItem)
            tooltipItem["tooltipText"] = tooltipText;
    }
    onVisibleChanged: {
        if (!visible && tooltipVisible)
            UTToolTipData.visible = false;
    }
    Component.onDestruction: {
        isDestroying = true;
        if (managedByToolTipManager)
            ToolTipManager.clearCurrentOwner(control);
        priv.removeItem();
        priv.leaveWindow();
    }

    QtObject {
        id: priv

        readonly property size emptySize: Qt.size(1, 1)
        property var timers: null // ToolTipTimers

        function container(): Item {
            return control.tooltipWindow.contentItem.children[0];
        }

        function needTimers(): void {
            if (!timers)
                timers = Qt.createComponent("ToolTipTimers.qml").createObject(control, { toolTip: control });
        }

        function createItem(): Item {
            const isBalloon = control.tooltipStyle === UTTooltipEnum.Customized;
            const component = Qt.createComponent("/qt/qml/UIToolkitQml/%1.qml".arg(isBalloon ? "CustomToolTip" : "NativeToolTip"));
            if (component.status !== Component.Ready)
                return null;
            const settings = {
                themeType: control.themeType,
                tooltipText: control.tooltipText,
                maximumWidth: control.maximumWidth,
                maximumLineCount: control.maximumLineCount
            };
            if (isBalloon) {
                // Follow the placement, which may turn the balloon round or slide it along the control.
                settings.arrowAnchor = Qt.binding(() => control.UTPopOverData.arrowAnchor);
                settings.arrowAlignment = Qt.binding(() => control.UTPopOverData.arrowAlignment);
                settings.arrowOffset = Qt.binding(() => control.UTPopOverData.arrowOffset);
                settings.radius = Qt.binding(() => control.UTPopOverData.radius);
            }
            return component.createObject(null, settings) as Item;
        }

        function showLater(): void {
            if (control && !control.isDestroying)
                control.displayToolTip(true);
        }

        function show(): void {
            if (control.tooltipText.length === 0 || !control.tooltipVisible
                    || control.managedByToolTipManager && !ToolTipManager.canShow(control))
                return;
            control.showToolTip();
            control.createTooltip();
            if (!control.tooltipExist() || !control.tooltipItem)
                return;
            const window = control.tooltipWindow;
            control.tooltipItem.parent = container();
            control.UTPopOverData.popOverSize = Qt.binding(() => control.tooltipWindow
                ? Qt.size(control.tooltipWindow.width, control.tooltipWindow.height) : emptySize);
            window.x = Qt.binding(() => control.UTPopOverData.popOverPosition.x);
            window.y = Qt.binding(() => control.UTPopOverData.popOverPosition.y);
            needTimers();
            timers.startToggleOff();
            window.visible = true;
            control.lastRecordedPosition = control.mapToGlobal(0, 0);
        }

        function hide(): void {
            if (control.tooltipExist() || control.tooltipItem)
                control.aboutToHide();
            removeItem();
            if (timers)
                timers.stopToggleOff();
            leaveWindow();
            control.UTPopOverData.popOverSize = emptySize;
        }

        function removeItem(): void {
            if (control.tooltipItem)
                discard(control.tooltipItem);
        }

        function discard(item: Item): void {
            if (item === control.tooltipItem)
                control.tooltipItem = null;
            // Destruction waits for the end of the event, and the window must be empty at once.
            item.parent = null;
            item.destroy();
        }

        // A window that several tool tips share may show another one by now, and then it stays.
        function leaveWindow(): void {
            if (control.tooltipWindow && !(control.tooltipExist() && container().children.length > 0))
                control.tooltipWindow.visible = false;
        }
    }
}
