.pragma library

// The icon and the colour set of each kind of indicator badge, by the values of UTIndicatorBadgeEnum.
const neutral = "label-secondary-text";
const accent = "interactiveicon-primary-filled-icon-active";
const danger = "label-error-text";
const warning = "label-warning-text";
const success = "label-success-text";

const kinds = [
    /* None */ null,
    { icon: "alert-badge-filled", colorSet: neutral },
    { icon: "all-mention-badge-filled", colorSet: accent },
    { icon: "blocked-badge-filled", colorSet: danger },
    { icon: "disconnect-badge-filled", colorSet: danger },
    { icon: "draft-badge-filled", colorSet: neutral },
    { icon: "error-badge-filled", colorSet: danger },
    { icon: "error-alert-badge-filled", colorSet: danger },
    { icon: "mention-badge-filled", colorSet: accent },
    { icon: "muted-badge-filled", colorSet: neutral },
    { icon: "newly-added-badge-filled", colorSet: accent },
    { icon: "outgoing-call-badge-filled", colorSet: success },
    { icon: "pop-out-badge-filled", colorSet: neutral },
    { icon: "recording-badge-filled", colorSet: danger },
    { icon: "success-badge-filled", colorSet: success },
    { icon: "unread-badge-filled", colorSet: accent },
    { icon: "warning-badge-filled", colorSet: warning },
    { icon: "warning-alert-badge-filled", colorSet: warning },
    { icon: "info-badge-filled", colorSet: accent },
    { icon: "new-feature-badge-filled", colorSet: accent },
    { icon: "personal-assistant-badge-filled", colorSet: neutral },
    { icon: "ai-assistant-badge-filled", colorSet: accent },
    { icon: "tip-help-badge-filled", colorSet: accent },
    { icon: "live-active-badge-filled", colorSet: danger },
    { icon: "live-inactive-badge-filled", colorSet: neutral },
    { icon: "forwarding-info-badge-filled", colorSet: neutral },
    { icon: "meeting-summary-badge-filled", colorSet: neutral }
];

// Icon and colour set of \a type; empty names for one that has none.
function kindOf(type) {
    return kinds[type] ?? { icon: "", colorSet: "" };
}
