.pragma library
.import QtQuick 2.15 as QtQuick
.import Korvu 1.0 as Host

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
        control.activate();
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
