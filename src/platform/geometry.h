#pragma once

#include <QRect>

/// The rectangle in Qt's coordinates, whose origin is at the top left. The frames of some controls
/// are given with the origin at the bottom left of their container, as on macOS.
inline QRect fromBottomLeft(const QRect& rectangle, int containerHeight) {
    return {rectangle.x(), containerHeight - rectangle.y() - rectangle.height(), rectangle.width(),
            rectangle.height()};
}
