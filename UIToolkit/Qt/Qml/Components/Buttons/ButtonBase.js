.pragma library
.import QtQuick 2.15 as QtQuick
.import Korvu 1.0 as Host
.import "qrc:/qt/qml/UIToolkitQml/DrawUtils.js" as DrawUtils
.import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

// What UTButtonBase does. It is apart because each function in a component costs each of its instances.

// The part of \a control called \a name, made when first asked for: the component \a type with \a settings, those that are
// functions bound, on \a parent.
function needPart(control, name, type, settings, parent) {
    const parts = control.parts ?? (control.parts = {});
    if (!parts[name]) {
        // Bindings come after: at creation, an untyped property would take the function itself for its value.
        const functions = Object.keys(settings).filter(key => typeof settings[key] === "function");
        const values = Object.assign({}, settings);
        for (const key of functions)
            values[key] = settings[key]();
        parts[name] = Qt.createComponent("qrc:/qt/qml/UIToolkitQml/%1.qml".arg(type)).createObject(parent, values);
        for (const key of functions)
            parts[name][key] = Qt.binding(settings[key]);
    }
    return parts[name];
}

// Called with every change of hover and focus.
function attend(control) {
    if (control.hovered || control.activeFocus)
        needPart(control, "attention", "ButtonAttention", { control: control }, control);
}

// What the tool tip shows; empty for none.
function tooltipText(control) {
    if (control.isTextEilded === undefined)
        return control.tooltip;
    const prepended = control.isTextEilded ? control.text : "";
    const appended = control.tooltip !== control.text ? control.tooltip : "";
    return prepended && appended ? qsTr("%1\n%2").arg(prepended).arg(appended) : prepended || appended;
}

// The focus ring's rectangle for the \a half of a button: where it joins the other half the line lies on the joint, and not
// on what the other half shows.
function ringOfHalf(half) {
    const corner = DrawUtils.RectangularCorners;
    const corners = half.mirrored ? DrawUtils.swapRectangularCornersLeftRight(half.squareCorners) : half.squareCorners;
    const cut = (one, other) => corners & one && corners & other ? 3 : 0; // the middle of the ring's lines
    const left = cut(corner.TopLeft, corner.BottomLeft);
    const top = cut(corner.TopLeft, corner.TopRight);
    return Qt.rect(left, top, half.width - left - cut(corner.TopRight, corner.BottomRight),
        half.height - top - cut(corner.BottomLeft, corner.BottomRight));
}

// Acts on release, and only if the key went down on this button. Auto-repeated keys are swallowed.
function handleKey(control, event, isPress) {
    if (event.key !== Qt.Key_Space && event.key !== Qt.Key_Return && event.key !== Qt.Key_Enter)
        return;
    event.accepted = true;
    if (event.isAutoRepeat)
        return;
    const activates = !isPress && control.isKeyPressed;
    control.isKeyPressed = isPress;
    if (activates)
        activate(control);
}

// What the keyboard and assistive technology do to press a button.
function activate(control) {
    if (!control.checkable) {
        control.clicked();
    } else if (!control.isInExclusiveGroup) {
        control.toggle();
        control.toggled();
    } else if (!control.checked) {
        control.checked = true;
        control.clicked();
        control.toggled();
    }
}

function say(control, text) {
    if (control.activeFocus && Host.UIToolKitUtils.isQt6Used())
        Host.UIToolKitUtils.sayAccessible(control, text);
}

// Gives the label of a pill the alignment and the icons that the pill asks for.
function arrangePill(control, label) {
    label.elide = control.alignment !== undefined ? QtQuick.Text.ElideRight : QtQuick.Text.ElideNone;
    label.horizontalAlignment = control.alignment ?? QtQuick.Text.AlignHCenter;
    for (const name of ["leftIcon", "rightIcon"]) {
        if (control[name].length > 0)
            needPart(control, name, "PillIcon", { control: control, isRight: name === "rightIcon" }, label);
    }
}

// The same for a change while the pill is in use. Before, asking for the label would make it too early.
function rearrangePill(control) {
    if (control.implicitWidth > 0)
        arrangePill(control, control.contentItem);
}

// Gives the label of a multiline pill the name of the line and the icon that the pill asks for, and the room for them.
function arrangeLine(control, label) {
    const designator = control.shouldDisplayLineDesignator
        ? needPart(control, "designator", "LineDesignator", { control: control }, label) : null;
    const icon = control.rightIcon.length > 0 ? needPart(control, "icon", "LineIcon", { control: control }, label) : null;
    label.leftPadding = Qt.binding(() => (control.mirrored ? icon : designator)?.room ?? 0);
    label.rightPadding = Qt.binding(() => (control.mirrored ? designator : icon)?.room ?? 0);
}

function rearrangeLine(control) {
    if (control.implicitWidth > 0)
        arrangeLine(control, control.contentItem);
}

// The colour of \a colorSet for the state of the plain button \a control.
function plainColor(control, colorSet) {
    return control.isPressed && control.enabled && colorSet.isValid ? colorSet.pressed : ThemeUtils.getColor(control, colorSet);
}

// The same for the colour set called \a name, whatever the theme.
function plainColorOf(control, name) {
    return Host.ThemeManager.globalTheme, plainColor(control, Host.App.getColorSet(name, control.themeType));
}

// Gives a plain button the border that most never show: in the colour of the focus while the keyboard's is on it, else in
// its own, if it has one, or in that which all buttons have in high contrast, where fills hardly stand out.
function needBorder(control) {
    const border = control.background?.border;
    if (!border || control.parts?.border)
        return;
    control.parts = Object.assign(control.parts ?? {}, { border: border });
    const isFocused = () => control.activeFocus && Host.App.isKeyboardFocus && control.focusColorSetName.length > 0;
    const ownName = () => control.borderColorSetName || "button-ghost-border"; // the latter is seen in high contrast only
    border.width = Qt.binding(() => isFocused() ? Math.max(2, control.borderWidth) : control.borderWidth);
    border.color = Qt.binding(() => plainColorOf(control, isFocused() ? control.focusColorSetName : ownName()));
}

// In high contrast, gives the \a ground of a button that shows one only now and then an edge for as long as it does.
// Called when the ground changes its colour, and thus after a change of the theme.
function needEdge(control, ground) {
    if (!Host.ThemeManager.isHighContrastTheme || ground.color.a === 0 || control.parts?.edge)
        return;
    control.parts = Object.assign(control.parts ?? {}, { edge: ground });
    ground.border.width = Qt.binding(() => Host.ThemeManager.isHighContrastTheme && ground.color.a > 0 ? 1 : 0);
    ground.border.color = Qt.binding(() => (Host.ThemeManager.globalTheme,
        ThemeUtils.getColor(control, Host.App.getColorSet("button-ghost-border", control.themeType))));
}

// How far from where its line begins the icon, text and badge of a plain button's label begin; they lie together.
function labelStart(label, isMirrored) {
    const free = Math.max(0, label.width - label.leftPadding - label.contentWidth - label.rightPadding);
    if (label.text.length === 0 || label.effectiveHorizontalAlignment === QtQuick.Text.AlignHCenter)
        return Math.round(free / 2);
    return label.effectiveHorizontalAlignment === (isMirrored ? QtQuick.Text.AlignLeft : QtQuick.Text.AlignRight) ? free : 0;
}
