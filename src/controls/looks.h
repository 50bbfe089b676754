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

/// The ring around a control that holds the keyboard focus; it lies outside `control`, three units
/// wide, and stands out on every ground of the window.
void drawFocusRing(QPainter& painter, const QRectF& control, qreal cornerRadius);

/// The veil over a control under the pointer, and a darker one while it is pressed; none for
/// another state.
QColor stateShade(QStyle::State state);

/// Draws a picture centred in `place`; pale when what it belongs to is not enabled.
void drawPicture(QPainter& painter, const QIcon& picture, const QRect& place, bool enabled = true,
                 QIcon::State state = QIcon::Off);

/// A size that is given for the usual font, as large as `font` needs it: never smaller, and as it
/// is up to 11 points.
QSize grown(const QSize& size, const QFont& font);
int grown(int length, const QFont& font);
