.pragma library

// Helpers for numbers, spans of time and rectangles, and the box that a hyperlink covers on screen.

const _millisecondsPerSecond = 1000;
const _secondsPerMinute = 60;
const _minutesPerHour = 60;
const _hoursPerDay = 24;
const _secondsPerHour = _secondsPerMinute * _minutesPerHour;
const _secondsPerDay = _secondsPerHour * _hoursPerDay;

// Decimal digits of a 32-bit integer; the sign does not count.
function numDigits(x) {
    const sign = x >> 31;
    const absolute = (x ^ sign) - sign;
    // Cutting to an integer turns the logarithm of nought, minus infinity, into 0.
    return (Math.log10(absolute) | 0) + 1;
}

// Hours, minutes and seconds between two instants in milliseconds, in either order. Whole days are dropped on
// purpose: 25 hours count as one.
function timeElapsedBetween(from, to) {
    let seconds = Math.abs(to - from) / _millisecondsPerSecond;
    seconds -= Math.floor(seconds / _secondsPerDay) * _secondsPerDay;
    const hours = Math.floor(seconds / _secondsPerHour) % _hoursPerDay;
    seconds -= hours * _secondsPerHour;
    const minutes = Math.floor(seconds / _secondsPerMinute) % _minutesPerHour;
    seconds -= minutes * _secondsPerMinute;
    return {
        hours: hours,
        minutes: minutes,
        seconds: Math.floor(seconds % _secondsPerMinute)
    };
}

function isValidNumber(value) {
    return typeof value === "number" && !isNaN(value);
}

function areNumbersEqual(a, b, e = Number.EPSILON) {
    return Math.abs(a - b) <= e;
}

function isNumberGreaterThan(a, b) {
    return !areNumbersEqual(a, b) && a > b;
}

function isNumberEqualOrGreaterThan(a, b) {
    return areNumbersEqual(a, b) || a > b;
}

function isNumberLessThan(a, b) {
    return !areNumbersEqual(a, b) && a < b;
}

function isNumberEqualOrLessThan(a, b) {
    return !isNumberGreaterThan(a, b);
}

function rectCenter(rect) {
    return Qt.point(rect.x + rect.width / 2, rect.y + rect.height / 2);
}

function rectLeftCenter(rect) {
    return Qt.point(rect.x, rect.y + rect.height / 2);
}

function rectRightCenter(rect) {
    return Qt.point(rect.x + rect.width, rect.y + rect.height / 2);
}

function rectTopLeft(rect) {
    return Qt.point(rect.x, rect.y);
}

// The smallest rectangle that holds both.
function rectUnited(rectLeft, rectRight) {
    const left = Math.min(rectLeft.x, rectRight.x);
    const top = Math.min(rectLeft.y, rectRight.y);
    const right = Math.max(rectLeft.x + rectLeft.width, rectRight.x + rectRight.width);
    const bottom = Math.max(rectLeft.y + rectLeft.height, rectRight.y + rectRight.height);
    return Qt.rect(left, top, right - left, bottom - top);
}

// A cursor rectangle on the border of two links may report the neighbour at its corner, hence the second try.
function _isLinkAt(textEdit, rect, link) {
    if (textEdit.linkAt(rect.x, rect.y) === link)
        return true;
    const center = rectCenter(rect);
    return textEdit.linkAt(center.x, center.y) === link;
}

function _widenedToRightEdge(textEdit, rect) {
    return Qt.rect(rect.x, rect.y, textEdit.width - rect.x, rect.height);
}

// The box of the whole link under the mouse, in the text edit's coordinates, or null where there is no link. Walks
// from the mouse to both ends of the link at once, character by character; a jump in x is a wrapped line, which
// then counts up to the right edge.
function hyperlinkBoundingRect(textEdit, mouseCursorX, mouseCursorY) {
    const link = textEdit.linkAt(mouseCursorX, mouseCursorY);
    if (!link)
        return null;

    const position = textEdit.positionAt(mouseCursorX, mouseCursorY);
    let startRect = textEdit.positionToRectangle(position);
    let endRect = startRect;
    let box = startRect;
    let isWalkingBack = true;
    let isWalkingForth = true;

    for (let i = 1; isWalkingBack || isWalkingForth; ++i) {
        if (isWalkingBack) {
            isWalkingBack = position - i >= 0;
            if (isWalkingBack) {
                let rect = textEdit.positionToRectangle(position - i);
                const isWrapped = isNumberGreaterThan(rect.x, startRect.x);
                isWalkingBack = isWrapped || _isLinkAt(textEdit, rect, link);
                if (isWalkingBack) {
                    if (isWrapped)
                        rect = _widenedToRightEdge(textEdit, rect);
                    box = rectUnited(box, rect);
                    startRect = rect;
                }
            }
        }
        if (isWalkingForth) {
            isWalkingForth = position + i <= textEdit.length;
            if (isWalkingForth) {
                let rect = textEdit.positionToRectangle(position + i);
                isWalkingForth = position + i === textEdit.length || _isLinkAt(textEdit, rect, link);
                if (isWalkingForth) {
                    if (isNumberLessThan(rect.x, endRect.x))
                        rect = _widenedToRightEdge(textEdit, rect);
                    box = rectUnited(box, rect);
                    endRect = rect;
                }
            }
        }
    }
    return box;
}
