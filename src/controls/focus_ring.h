#pragma once

#include <QRect>

class QPainter;

/// The ring around a control of ours that holds the keyboard focus; it lies outside `control`,
/// three units wide, and stands out on every ground of the window.
void drawFocusRing(QPainter& painter, const QRectF& control, qreal cornerRadius);
