// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace vorlund {

// Where windows go. All sizes and places are those of windows with their frames, in pixels of the desktop;
// `room` is the work area of the screen, an empty one where there is no screen.

/// The place nearest to that of `window` at which all of it lies in the room; the upper left corner, if it is
/// too large.
QPoint IntoRoom(QRect window, const QRect& room);

/// The place of a window of this size right below `above`, in its middle from left to right, or as much
/// higher as the room asks for.
QPoint PlaceBelow(const QRect& above, QSize size, const QRect& room);

/// The place of a window of this size in the middle of the room, or as much higher as windows of the height
/// `below` ask for that will come up below it.
QPoint PlaceAbove(int below, QSize size, const QRect& room);

}  // namespace vorlund
