#include "list/item_button.h"

#include <QKeyEvent>
#include <QPainter>

#include "controls/looks.h"
#include "platform/bundle.h"

namespace {

constexpr int statusTag = 2;
constexpr int titleTop = 10;
constexpr int titleRoom = 20;
constexpr int arrowSide = 10;
constexpr int arrowInset = 20;
constexpr QColor lineColor{128, 128, 128};

}  // namespace

ItemButton::ItemButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
}

void ItemButton::setTag(int tag) {
    tag_ = tag;
    setAccessibleName(tag == statusTag ? tr("Status") : tr("Item"));
    updateDescription();
    update();
}

void ItemButton::setOn(bool on) {
    on_ = on;
    updateDescription();
    update();
}

void ItemButton::setPaixuImageHidden(bool hidden) {
    paixuImageHidden_ = hidden;
    updateDescription();
    update();
}

QString ItemButton::title() const {
    switch (tag_) {
        case 1:
            return QStringLiteral(" Item");
        case statusTag:
            return QStringLiteral("  Status");
        default:
            return {};
    }
}

void ItemButton::updateDescription() {
    if (paixuImageHidden_) {
        setAccessibleDescription({});
        return;
    }
    setAccessibleDescription(on_ ? tr("sorted in ascending order")
                                 : tr("sorted in descending order"));
}

QSize ItemButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(title()) + grown(arrowInset + arrowSide, font()), 30};
}

void ItemButton::enterEvent(QEnterEvent* /*event*/) {
    backgroundColor_ = mouseEnteredColor_;
    update();
}

void ItemButton::leaveEvent(QEvent* /*event*/) {
    backgroundColor_ = mouseExitedColor_;
    update();
}

void ItemButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), isDown() ? mouseEnteredColor_.darker(110) : backgroundColor_);
    // This line lies below the button and is clipped; what is seen there is the list's background.
    painter.fillRect(0, height() + 1, width(), 1, lineColor);
    if (tag_ == statusTag) {
        painter.fillRect(0, 0, 1, height(), lineColor);
    }
    painter.setPen(isEnabled() ? QColor(Qt::black) : lineColor);
    const int line = fontMetrics().height();
    const int top = line <= titleRoom ? titleTop : (height() - line) / 2;
    painter.drawText(QRect(0, top, width(), line), Qt::AlignLeft, title());
    if (!paixuImageHidden_) {
        const int side = grown(arrowSide, font());
        const QRect arrow(width() - grown(arrowInset, font()), (height() - side) / 2, side, side);
        drawPicture(painter,
                    Bundle::imageNamed(on_ ? QStringLiteral("up") : QStringLiteral("down")), arrow);
    }
    if (hasFocus()) {
        painter.setPen(QPen(focusColor, 2));
        painter.drawRect(rect().adjusted(2, 2, -2, -2));
    }
}

void ItemButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}
