#pragma once

#include "korvuui_export.h"

#include <QPainterPath>

class QWindow;

//! Windows that are not rectangles on displays that cannot mix a window with what lies beneath it.
namespace WindowMask {

//! Whether what \a window leaves transparent would be black: on an X11 display without a compositing manager.
KORVUUI_EXPORT bool isNeeded(const QWindow &window);

//! Cuts \a window to \a outline, in its own coordinates; an empty one makes it a rectangle again.
KORVUUI_EXPORT void set(QWindow &window, const QPainterPath &outline);

} // namespace WindowMask
