#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>
#include <QStyle>

class QFont;
class QPainter;
class QRect;
class QRectF;

// What the controls that the program draws itself have in common.

/// The colour of the keyboard focus, and of the place where a drag lands.
inline constexpr QColor focusColor{1, 92, 220};

/// Draws the ring around a control that holds the keyboard focus. It lies outside `control`, three
/// units wide, and is visible on every background of the window.
void drawFocusRing(QPainter& painter, const QRectF& control, qreal cornerRadius);

/// The translucent colour to paint over a control under the pointer, darker while it is pressed;
/// transparent for any other state and for a control that is not enabled.
QColor stateShade(QStyle::State state);

/// Draws a picture centred in `place`, at most as large as that; pale when `enabled` is false. A
/// null picture draws nothing.
void drawPicture(QPainter& painter, const QIcon& picture, const QRect& place, bool enabled = true,
                 QIcon::State state = QIcon::Off);

/// A size, in units, that is given for a font of 11 points: unchanged for such a font and smaller
/// ones, larger in proportion for a larger font.
QSize grown(const QSize& size, const QFont& font);
int grown(int length, const QFont& font);
