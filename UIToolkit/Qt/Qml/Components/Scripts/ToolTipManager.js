.pragma library

// Lets one managed tool tip show at a time. An owner is whatever shows a tool tip and hides it again in its function
// hideManagedTooltip(), which runs when another owner takes over.

var currentOwner = null;

function setCurrentOwner(owner) {
    if (currentOwner && currentOwner !== owner && typeof currentOwner.hideManagedTooltip === "function")
        currentOwner.hideManagedTooltip();
    currentOwner = owner;
}

function canShow(owner) {
    return currentOwner === owner;
}

function clearCurrentOwner(owner) {
    if (currentOwner === owner)
        currentOwner = null;
}
