#include "controls/pane_button.h"

#include <QPainter>
#include <QStyle>

#include "controls/focus_ring.h"

namespace {

constexpr qreal cornerRadius = 4.0;
constexpr QColor pressedShade{0, 0, 0, 40};
constexpr QColor frameColor{138, 146, 156};
constexpr QColor framedGround{244, 245, 247};
constexpr QColor framedPressed{213, 217, 222};

void drawRoundedFrame(QPainter& painter, const QRect& frame, const QPen& pen,
                      const QBrush& ground) {
    const qreal inset = pen.style() == Qt::NoPen ? 0.0 : pen.widthF() / 2;
    painter.setPen(pen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(frame).adjusted(inset, inset, -inset, -inset), cornerRadius,
                            cornerRadius);
}

QPen focusPen() {
    return {focusColor, 2};
}

}  // namespace

void drawPaneButtonFrame(QPainter& painter, const QRect& button, bool pressed, bool focused) {
    if (!pressed && !focused) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    drawRoundedFrame(painter, button, focused ? focusPen() : QPen(Qt::NoPen),
                     pressed ? QBrush(pressedShade) : QBrush(Qt::NoBrush));
    painter.restore();
}

void PaneButton::setFramed(bool framed) {
    framed_ = framed;
    update();
}

QSize PaneButton::sizeHint() const {
    return iconSize() + QSize(2 * paneButtonMargin, 2 * paneButtonMargin);
}

void PaneButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (framed_) {
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor ground = isDown() ? framedPressed : underMouse() ? Qt::white : framedGround;
        drawRoundedFrame(painter, rect(), hasFocus() ? focusPen() : QPen(frameColor, 1), ground);
    } else {
        drawPaneButtonFrame(painter, rect(), isDown(), hasFocus());
    }
    const QRect picture =
        QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, iconSize(), rect());
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled,
                 isChecked() ? QIcon::On : QIcon::Off);
}
