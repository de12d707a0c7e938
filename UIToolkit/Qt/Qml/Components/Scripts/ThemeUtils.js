.pragma library

// Chooses the colour of a colour set that fits the state of an item. The set comes from the host
// (App.getColorSet); the item is anything with enabled, pressed, hovered, activeFocus and checked, of which a
// missing one counts as false.

function _checkInput(funcName, widget, colorSet) {
    if (!widget)
        console.error(funcName, ": null widget when getting color for colorSet:", colorSet.name);
    if (!colorSet)
        console.error(funcName, ": null colorset for widget:", widget);
    else if (!colorSet.isValid)
        console.error(funcName, ": invalid colorset:", colorSet.name, "for widget:", widget);
}

function _checkOutput(funcName, color, colorSet, widget) {
    const isSetValid = Boolean(colorSet) && colorSet.isValid;
    if (color === null || !isSetValid || color === "") {
        const name = colorSet ? colorSet.name : undefined;
        console.error(funcName, "unexpected color:", color, "colorSet.name:", name, "for widget:", widget);
    }
}

// Runs neither check on purpose: every item asks on every change of state, and while items are being built or
// taken down the checks would flood the log. A set that is missing or invalid paints nothing; without an item
// there is no state, so the resting colour it is.
function getColor(widget, colorSet) {
    if (!colorSet || !colorSet.isValid)
        return "transparent";
    if (!widget)
        return colorSet.normal;
    if (!widget.enabled)
        return colorSet.disabled;
    if (widget.pressed)
        return colorSet.pressed;
    if (widget.hovered)
        return colorSet.hovered;
    // A set that has no focus colour of its own lets the checked colour through.
    if (widget.activeFocus && colorSet.focused !== colorSet.normal)
        return colorSet.focused;
    if (widget.checked)
        return colorSet.checked;
    return colorSet.normal;
}

function _textFieldColor(widget, colorSet) {
    if (!colorSet || !colorSet.isValid)
        return "transparent";
    // A read-only field looks at rest whatever happens to it, even while disabled.
    if (!widget || widget.readOnly)
        return colorSet.normal;
    if (!widget.enabled)
        return colorSet.disabled;
    if (widget.hovered)
        return colorSet.hovered;
    if (widget.activeFocus && colorSet.focused !== colorSet.normal)
        return colorSet.focused;
    if (widget.checked)
        return colorSet.checked;
    return colorSet.normal;
}

// The rule for text fields: a field is never shown pressed.
function getTextFieldColor(widget, colorSet) {
    _checkInput("getTextFieldColor", widget, colorSet);
    const color = _textFieldColor(widget, colorSet);
    _checkOutput("getTextFieldColor", color, colorSet, widget);
    return color;
}
