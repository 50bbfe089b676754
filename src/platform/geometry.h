#pragma once

#include <QRect>

/// Rectangles of the controls are given with the origin at the bottom left, as on macOS;
/// this is the one place that turns them round.
inline QRect fromBottomLeft(const QRect& rectangle, int containerHeight) {
    return {rectangle.x(), containerHeight - rectangle.y() - rectangle.height(), rectangle.width(),
            rectangle.height()};
}
