.pragma library

// The colour sets of a pair of buttons in one pill.

const standard = {
    background: "dualbutton-standard-background", border: "dualbutton-standard-border",
    wash: "dualbutton-standard-button-background", text: "dualbutton-standard-button-text",
    checkedWash: "button-secondary-active-background", checkedText: "button-secondary-active-text"
};
const overlay = {
    background: "dualbutton-overlay-background", border: "dualbutton-overlay-border",
    wash: "dualbutton-overlay-button-background", text: "dualbutton-overlay-button-text"
};

// One set washes a button in all of its states.
function plain(name) {
    return { background: `${name}-background`, border: `${name}-border`, wash: `${name}-background`, text: `${name}-text` };
}

// By the names of UTButtonStyle. Every other style is as Secondary.
const styles = {
    Primary: plain("button-primary"),
    Ghost: Object.assign(plain("button-ghost"), { checkedWash: standard.checkedWash, checkedText: standard.checkedText }),
    Accent: plain("button-accent-fill"),
    Join: plain("button-join-fill"),
    Cancel: plain("button-cancel-fill"),
    Message: plain("button-message-fill"),
    OverLay: overlay
};

// Those of \a style, a number of \a enumeration; over a picture it has no say.
function colorsOf(style, isOverlay, enumeration) {
    return isOverlay ? overlay : styles[Object.keys(styles).find(name => enumeration[name] === style)] ?? standard;
}

// The user pressed \a half, which shows \a state() and never changes that by itself.
function keepState(half, state) {
    if (half.checked !== state())
        half.checked = Qt.binding(state);
}
