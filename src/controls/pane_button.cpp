#include "controls/pane_button.h"

#include <QPainter>
#include <QStyleOptionToolButton>

#include "controls/looks.h"

namespace {

constexpr qreal cornerRadius = 4.0;
constexpr QColor frameColor{86, 94, 104};
constexpr QColor framedGround{244, 245, 247};

void drawRoundedFrame(QPainter& painter, const QRect& frame, const QPen& pen,
                      const QColor& ground) {
    const qreal inset = pen.style() == Qt::NoPen ? 0.0 : pen.widthF() / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(frame).adjusted(inset, inset, -inset, -inset), cornerRadius,
                            cornerRadius);
    painter.restore();
}

}  // namespace

void drawPaneButtonFrame(QPainter& painter, const QRect& button, QStyle::State state) {
    drawRoundedFrame(painter, button,
                     state.testFlag(QStyle::State_HasFocus) ? QPen(focusColor, 2) : QPen(Qt::NoPen),
                     stateShade(state));
}

void PaneButton::setAppearance(Appearance appearance) {
    appearance_ = appearance;
    update();
}

QSize PaneButton::sizeHint() const {
    return grown(iconSize(), font()) + QSize(2 * paneButtonMargin, 2 * paneButtonMargin);
}

void PaneButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (appearance_ == Appearance::Framed) {
        drawRoundedFrame(painter, rect(), QPen(isEnabled() ? frameColor : frameColor.lighter(130)),
                         framedGround);
    }
    if (appearance_ != Appearance::Indicator) {
        drawPaneButtonFrame(painter, rect(), option.state);
    }
    const QRect picture = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter,
                                              grown(iconSize(), font()).boundedTo(size()), rect());
    drawPicture(painter, icon(), picture, isEnabled() || appearance_ == Appearance::Indicator,
                isChecked() ? QIcon::On : QIcon::Off);
}
