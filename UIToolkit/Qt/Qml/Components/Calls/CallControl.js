.pragma library
.import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as ButtonBase

// What UTCallControlButton and its wrapper do. It is apart because each function in a component costs each of its
// instances.

// A half that was activated: "left" or "right". Qt lets a half that is checked be checkable, asked for or not.
function clicked(control, side, half) {
    if (!half.checkable)
        control[side + "Clicked"]();
}

function toggled(control, side, half) {
    if (control[side + "Checkable"]) {
        if (control[side + "Checked"] !== half.checked)
            control[side + "Checked"] = half.checked;
        control[side + "Toggled"]();
    } else {
        half.checked = control[side + "Checked"];
        control[side + "Clicked"]();
    }
}

// Colours follow the state from the first change on. At rest nothing has to be listened to.
function follow(control, left) {
    if (control.leftState)
        return;
    control.leftState = Qt.binding(() => control.shownState ?? left);
    control.controlsTarget = Qt.binding(() => control.ground ?? control.leftState);
}

// Gives \a control the label and the right half that its type, after its \a metrics, and its text ask for. A script cannot
// name a \a corner itself.
function arrange(control, left, metrics, corner) {
    left.contentItem.sourceSize = metrics.leftIconSize;
    metrics.showText = control.showText && control.text.length > 0 && metrics.canShowText;
    if (metrics.showText && !left.parts?.label) {
        ButtonBase.needPart(left, "label", "CallControlLabel", { control: control, half: left }, left);
        const label = left.parts.label;
        metrics.labelHeight = Qt.binding(() => label.naturalHeight);
        metrics.labelRoom = Qt.binding(() => metrics.showText ? metrics.textLeftMargin + label.naturalWidth : 0);
        arrangeLeft(left, metrics);
    }
    if (hasRightHalf(metrics) && !control.rightButton) {
        control.rightButton = makeRightHalf(control, left, metrics, corner);
        arrangeLeft(left, metrics);
    }
    showTooltip(left);
}

// The large assistant leaves the right half of the type before it, and most types vanish in ExtremeSmall: without a width
// there is nothing for the Tab key to stop at.
function hasRightHalf(metrics) {
    return metrics.rightButtonVisible && metrics.rightIconSize.width > 0;
}

// From here on the icon does not lie in the middle of the pill any more.
function arrangeLeft(left, metrics) {
    const naturalWidth = () => metrics.leftSideLeftPadding + metrics.leftIconSize.width + metrics.labelRoom + metrics.leftSideRightPadding;
    const start = () => metrics.leftSideLeftPadding + Math.max(0, Math.round((left.width - naturalWidth()) / 2));
    const end = () => left.width - start() - metrics.leftIconSize.width;
    left.anchors.rightMargin = Qt.binding(() => metrics.rightRoom); // mirrored with the layout
    left.leftPadding = Qt.binding(() => left.mirrored ? end() : start());
    left.rightPadding = Qt.binding(() => left.mirrored ? start() : end());
}

// The right half of \a control, beside \a left.
function makeRightHalf(control, left, metrics, corner) {
    const wash = isChecked => isChecked ? metrics.checkedBackgroundColorSetName : metrics.backgroundColorSetName;
    const isShown = () => hasRightHalf(metrics);
    const isOneThing = () => control.leftChecked && !metrics.separatorVisible;
    const right = ButtonBase.needPart(left, "rightHalf", "PillHalf", {
        x: () => left.mirrored ? 0 : control.width - metrics.rightRoom,
        width: () => metrics.rightRoom,
        height: () => control.height,
        visible: isShown,
        activeFocusOnTab: () => left.activeFocusOnTab,
        squareCorners: corner.TopLeft | corner.BottomLeft,
        themeType: () => control.themeType,
        textColorSet: () => metrics.textColorSet,
        washColorSetName: () => wash(isOneThing() || control.rightChecked),
        iconSize: () => metrics.rightIconSize,
        startPadding: () => metrics.rightSideLeftPadding,
        endPadding: () => metrics.rightSideRightPadding,
        enabled: () => control.rightEnabled,
        checkable: () => control.rightCheckable,
        checked: control.rightChecked,
        iconName: () => control.rightIcon,
        checkedIconName: () => control.rightCheckedIcon,
        tooltip: () => control.rightTooltip || control.rightName,
        accessibleName: () => control.rightAccessibleName,
        accessibleDescription: () => control.rightAccessibleDescription,
        announceStateChange: () => control.rightAnnouncesState,
        accessibleText: () => control.rightStatusText
    }, control);
    right.clicked.connect(() => clicked(control, "right", right));
    right.toggled.connect(() => toggled(control, "right", right));
    control.rightCheckedChanged.connect(() => right.checked = control.rightChecked);

    // Of two halves, each shows by itself that it is hovered or pressed.
    control.ground = Qt.binding(() => isShown()
        ? { enabled: left.enabled || control.rightEnabled, checked: isOneThing() } : null);
    follow(control, left);
    metrics.rightRoom = Qt.binding(() => isShown() ? right.naturalWidth : 0);
    left.squareCorners = Qt.binding(() => isShown() ? corner.TopRight | corner.BottomRight : corner.None);
    ButtonBase.needPart(left, "wash", "PillHalfWash", {
        half: left,
        corners: () => left.squareCorners,
        isShown: () => {
            const state = control.shownState ?? left;
            return isShown() && Boolean(state.hovered || state.pressed || state.checked && metrics.separatorVisible);
        },
        themeType: () => control.themeType,
        controlsTarget: () => control.shownState ?? left,
        backgroundColorSetName: () => wash(control.leftChecked)
    }, left);
    ButtonBase.needPart(right, "separator", "KRectangle", {
        x: () => right.mirrored ? right.width - 1 : 0,
        y: () => Math.round((right.height - metrics.separatorHeight) / 2),
        width: 1,
        height: () => metrics.separatorHeight,
        visible: () => metrics.separatorVisible,
        color: () => right.contentColor,
        opacity: 0.3
    }, right);
    return right;
}

// Where there is no tool tip of its own, a half shows its text as one.
function giveTooltip(control, left) {
    left.tooltip = Qt.binding(() => control.leftTooltip || control.leftName || control.text);
    showTooltip(left);
}

function showTooltip(left) {
    const label = left.parts?.label;
    left.isTextEilded = label?.isShown ? label.truncated : left.tooltip.length > 0 ? undefined : true;
}

function showBadge(control, left) {
    ButtonBase.needPart(left, "badge", "CallControlBadge", { control: control }, control);
}

const highestCount = 99;

// The actions of the wrapper, in the order of its enumeration: name, what undoes it, what is said when it is on and off,
// the menu's name, icons, style, and the types without and with a menu. One that has a word for "on" is a state.
const columns = ["name", "undoName", "onText", "offText", "menuName", "icon", "onIcon", "style", "type", "menuType"];
const actions = [
    ["", "", "", "", "", "", "", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Mute"), QT_TR_NOOP("Unmute"), QT_TR_NOOP("Muted"), QT_TR_NOOP("Unmuted"), QT_TR_NOOP("Audio settings"),
        "microphone-bold", "microphone-muted-bold", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Stop video"), QT_TR_NOOP("Start video"), QT_TR_NOOP("Video stopped"), QT_TR_NOOP("Video started"), QT_TR_NOOP("Video settings"),
        "video-bold", "video-muted-bold", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Share"), QT_TR_NOOP("Stop sharing"), QT_TR_NOOP("Sharing"), QT_TR_NOOP("No longer sharing"), QT_TR_NOOP("Sharing options"),
        "share-screen-bold", "", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Captions"), QT_TR_NOOP("Hide captions"), QT_TR_NOOP("Captions shown"), QT_TR_NOOP("Captions hidden"), QT_TR_NOOP("Caption settings"),
        "captions-bold", "captions-filled", "Secondary", "Round", "ClosedCaptions"],
    [QT_TR_NOOP("Raise hand"), QT_TR_NOOP("Lower hand"), QT_TR_NOOP("Hand raised"), QT_TR_NOOP("Hand lowered"), QT_TR_NOOP("Reactions"),
        "raise-hand-bold", "raise-hand-filled", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Record"), QT_TR_NOOP("Stop recording"), QT_TR_NOOP("Recording"), QT_TR_NOOP("Recording stopped"), QT_TR_NOOP("Recording options"),
        "record-bold", "record-filled", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Speaker"), QT_TR_NOOP("Speaker off"), QT_TR_NOOP("Speaker on"), QT_TR_NOOP("Speaker off"), QT_TR_NOOP("Choose a speaker"),
        "speaker-bold", "speaker-filled", "Secondary", "Round", "DualArrow"],
    [QT_TR_NOOP("Keypad"), QT_TR_NOOP("Hide keypad"), QT_TR_NOOP("Keypad shown"), QT_TR_NOOP("Keypad hidden"), QT_TR_NOOP("Keypad options"),
        "keypad-bold", "", "Ghost", "Round", "DualArrow"],
    [QT_TR_NOOP("Participants"), QT_TR_NOOP("Hide participants"), QT_TR_NOOP("Participants shown"), QT_TR_NOOP("Participants hidden"), QT_TR_NOOP("Ways to invite"),
        "people-bold", "people-filled", "Ghost", "Panel", "DualArrow"],
    [QT_TR_NOOP("Chat"), QT_TR_NOOP("Hide chat"), QT_TR_NOOP("Chat shown"), QT_TR_NOOP("Chat hidden"), QT_TR_NOOP("Chat options"),
        "chat-bold", "chat-filled", "Ghost", "Panel", "DualArrow"],
    [QT_TR_NOOP("Assistant"), QT_TR_NOOP("Hide assistant"), QT_TR_NOOP("Assistant shown"), QT_TR_NOOP("Assistant hidden"), QT_TR_NOOP("Assistant options"),
        "ai-sparkle-bold", "", "Ghost", "Panel", "DualArrow"],
    [QT_TR_NOOP("Leave"), "", "", "", QT_TR_NOOP("Ways to leave"), "leave-meeting-bold", "", "Cancel", "Round", "DualArrow"],
    [QT_TR_NOOP("End call"), "", "", "", QT_TR_NOOP("Ways to end the call"), "end-call-filled", "", "Cancel", "Round", "DualArrow"],
    [QT_TR_NOOP("Join"), "", "", "", QT_TR_NOOP("Ways to join"), "audio-call-filled", "", "Join", "Round", "DualArrow"]
];

const texts = ["name", "undoName", "onText", "offText", "menuName"];

function actionRow(action) {
    const values = actions[action] ?? actions[0];
    const row = {};
    columns.forEach((column, i) => {
        row[column] = texts.includes(column) && values[i] ? qsTr(values[i]) : values[i];
    });
    row.isState = row.onText.length > 0;
    return row;
}
