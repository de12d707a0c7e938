#pragma once

#include "UTPopOverEnum.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <functional>

/*! Where a balloon goes that points at something on the screen. */
namespace PopOverPlacement {

//! Pixels between the target and the balloon.
inline constexpr int gap = 2;
//! Pixels that a balloon moved along its target keeps from the edge of the screen.
inline constexpr int edgeDistance = 5;

struct Screen
{
    QRect geometry;
    //! Without what panels cover.
    QRect available;
};

struct Request
{
    QRect target;
    QSize size;
    UTPopOverEnum::ArrowAnchor anchor = UTPopOverEnum::None;
    UTPopOverEnum::ArrowAlignment alignment = UTPopOverEnum::LeftAlignment;
    int arrowSize = 0;
    int radius = 0;
    int arrowOffset = 0;
};

struct Place
{
    QPoint position;
    //! The side of the balloon that carries the arrow in the end.
    UTPopOverEnum::ArrowAnchor anchor = UTPopOverEnum::None;
    //! The offset with which the arrow still points at the target.
    int arrowOffset = 0;
};

//! The available part of the screen that shows most of \a target, the first of several; a null rectangle without screens.
QRect screenFor(const QRect &target, const QList<Screen> &screens);

//! Told of each step of placing: the position is that of the end only.
using Listener = std::function<void(const Place &)>;

//! Where \a request fits on a screen with the part \a available.
Place place(const Request &request, const QRect &available, const Listener &stepped = {});

} // namespace PopOverPlacement
