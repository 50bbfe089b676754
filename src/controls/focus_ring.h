#pragma once

#include <QColor>
#include <QRect>

class QPainter;

/// The colour of the keyboard focus on everything that the program draws itself.
inline constexpr QColor focusColor{1, 92, 220};

/// The ring around a control of ours that holds the keyboard focus; it lies outside `control`,
/// three units wide, and stands out on every ground of the window.
void drawFocusRing(QPainter& painter, const QRectF& control, qreal cornerRadius);
