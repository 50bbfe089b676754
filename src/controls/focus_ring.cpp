#include "controls/focus_ring.h"

#include <QPainter>

void drawFocusRing(QPainter& painter, const QRectF& control, qreal cornerRadius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRoundedRect(control.adjusted(-0.5, -0.5, 0.5, 0.5), cornerRadius, cornerRadius);
    painter.setPen(QPen(focusColor, 2));
    painter.drawRoundedRect(control.adjusted(-2, -2, 2, 2), cornerRadius + 2, cornerRadius + 2);
    painter.restore();
}
