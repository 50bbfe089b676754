#include "controls/looks.h"

#include <algorithm>

#include <QFontInfo>
#include <QPainter>

namespace {

constexpr double usualFont = 15.0;  // pixels, 11 points

double growth(const QFont& font) {
    return std::max(1.0, QFontInfo(font).pixelSize() / usualFont);
}

}  // namespace

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

QColor stateShade(QStyle::State state) {
    if (!state.testFlag(QStyle::State_Enabled)) {
        return Qt::transparent;
    }
    if (state.testFlag(QStyle::State_Sunken)) {
        return {0, 0, 0, 60};
    }
    return state.testFlag(QStyle::State_MouseOver) ? QColor(0, 0, 0, 25) : QColor(Qt::transparent);
}

void drawPicture(QPainter& painter, const QIcon& picture, const QRect& place, bool enabled,
                 QIcon::State state) {
    const qreal opacity = painter.opacity();
    // A style would mix a disabled picture with the colours of the desktop.
    painter.setOpacity(enabled ? opacity : opacity * 0.4);
    picture.paint(&painter, place, Qt::AlignCenter, QIcon::Normal, state);
    painter.setOpacity(opacity);
}

QSize grown(const QSize& size, const QFont& font) {
    return size * growth(font);
}

int grown(int length, const QFont& font) {
    return qRound(length * growth(font));
}
