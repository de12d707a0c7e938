.pragma library

// Strokes outlines around (or inside) an item on a canvas that is larger than the item by extraSpace on every
// side, and paints checkerboards. Lengths are pixels, angles radians, arcs run clockwise. An offset says how far
// the line lies outside the item's edge; a negative one lies inside.

// Corners that are drawn square; the values are those of KBasicFocusItem.RectangularCorner.
const RectangularCorners = Object.freeze({
    None: 0,
    TopLeft: 1,
    TopRight: 2,
    BottomLeft: 4,
    BottomRight: 8
});

const _angleRight = 0;
const _angleDown = 0.5 * Math.PI;
const _angleLeft = Math.PI;
const _angleUp = 1.5 * Math.PI;

// A shape taller than wide cannot be a lying pill; it becomes a rectangle with corners of this radius.
const _uprightPillRadius = 4;

// Distance from the edge of the canvas to the centre line of the stroke.
function _borderOffset(extraSpace, offset, lineThickness) {
    return extraSpace - offset - lineThickness / 2;
}

function _begin(ctx, color) {
    ctx.beginPath();
    ctx.strokeStyle = color;
}

function _stroke(ctx, lineThickness) {
    ctx.lineWidth = lineThickness;
    ctx.stroke();
}

function drawRoundedSidesOutline(ctx, height, width, extraSpace, lineThickness, offset, color) {
    if (height > width) {
        drawRoundedCornerRectangleOutline(ctx, height, width, extraSpace, lineThickness, offset, color,
                                          _uprightPillRadius);
        return;
    }

    const b = _borderOffset(extraSpace, offset, lineThickness);
    const itemHeight = height - 2 * extraSpace;
    const outset = offset + lineThickness / 2;
    // The canvas rejects a negative radius, which an inner line on a very flat item would have.
    const r = Math.max(0, itemHeight / 2 + outset);
    const c = height / 2;

    _begin(ctx, color);
    ctx.moveTo(c, b);
    ctx.lineTo(width - c, b);
    ctx.arc(width - c, c, r, _angleUp, _angleDown, false);
    ctx.lineTo(c, extraSpace + itemHeight + outset);
    ctx.arc(c, c, r, _angleDown, _angleUp, false);
    _stroke(ctx, lineThickness);
}

function drawRoundedCornerRectangleOutline(ctx, height, width, extraSpace, lineThickness, offset, color, radius) {
    const b = _borderOffset(extraSpace, offset, lineThickness);
    const r = Math.max(0, radius);
    const ro = r + b;
    const xr = width - r - b;
    const yb = height - r - b;

    _begin(ctx, color);
    ctx.moveTo(ro, b);
    ctx.lineTo(xr, b);
    ctx.arc(xr, ro, r, _angleUp, _angleRight, false);
    ctx.lineTo(width - b, yb);
    ctx.arc(xr, yb, r, _angleRight, _angleDown, false);
    ctx.lineTo(ro, height - b);
    ctx.arc(ro, yb, r, _angleDown, _angleLeft, false);
    ctx.lineTo(b, ro);
    ctx.arc(ro, ro, r, _angleLeft, _angleUp, false);
    _stroke(ctx, lineThickness);
}

function swapRectangularCornersLeftRight(corners) {
    const left = RectangularCorners.TopLeft | RectangularCorners.BottomLeft;
    const right = RectangularCorners.TopRight | RectangularCorners.BottomRight;
    // Each right corner's bit is the one above its left neighbour's.
    return (corners & left) << 1 | (corners & right) >> 1;
}

// Unlike the plain rounded rectangle this takes the radius of the item's own edge and fits it to the line.
function drawRectangularAndRoundCornerOutline(ctx, height, width, extraSpace, lineThickness, offset, color, radius,
                                              corners) {
    const b = _borderOffset(extraSpace, offset, lineThickness);
    const r = Math.max(0, radius - b);
    const ro = r + b;
    const xr = width - r - b;
    const yb = height - r - b;

    _begin(ctx, color);
    if (corners & RectangularCorners.TopLeft)
        ctx.moveTo(b, b);
    else
        ctx.moveTo(ro, b);

    if (corners & RectangularCorners.TopRight) {
        ctx.lineTo(width - b, b);
    } else {
        ctx.lineTo(xr, b);
        ctx.arc(xr, ro, r, _angleUp, _angleRight, false);
    }

    if (corners & RectangularCorners.BottomRight) {
        ctx.lineTo(width - b, height - b);
    } else {
        ctx.lineTo(width - b, yb);
        ctx.arc(xr, yb, r, _angleRight, _angleDown, false);
    }

    if (corners & RectangularCorners.BottomLeft) {
        ctx.lineTo(b, height - b);
    } else {
        ctx.lineTo(ro, height - b);
        ctx.arc(ro, yb, r, _angleDown, _angleLeft, false);
    }

    if (corners & RectangularCorners.TopLeft) {
        ctx.lineTo(b, b);
    } else {
        ctx.lineTo(b, ro);
        ctx.arc(ro, ro, r, _angleLeft, _angleUp, false);
    }
    _stroke(ctx, lineThickness);
}

// The rounded clip stays in force, so that what the caller paints next keeps within the board.
function drawCheckerBoard(ctx, width, height, squareSize, radius, color0, color1) {
    ctx.clearRect(0, 0, width, height);

    ctx.beginPath();
    ctx.moveTo(radius, 0);
    ctx.lineTo(width - radius, 0);
    ctx.quadraticCurveTo(width, 0, width, radius);
    ctx.lineTo(width, height - radius);
    ctx.quadraticCurveTo(width, height, width - radius, height);
    ctx.lineTo(radius, height);
    ctx.quadraticCurveTo(0, height, 0, height - radius);
    ctx.lineTo(0, radius);
    ctx.quadraticCurveTo(0, 0, radius, 0);
    ctx.closePath();
    ctx.clip();

    const rows = Math.ceil(height / squareSize);
    const columns = Math.ceil(width / squareSize);
    for (let row = 0; row < rows; ++row) {
        for (let column = 0; column < columns; ++column) {
            ctx.fillStyle = (row + column) % 2 === 0 ? color0 : color1;
            ctx.fillRect(column * squareSize, row * squareSize, squareSize, squareSize);
        }
    }
}
