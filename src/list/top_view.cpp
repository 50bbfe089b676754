#include "list/top_view.h"

#include <algorithm>

#include "list/list_cell.h"
#include "platform/geometry.h"

namespace {

constexpr int headerHeight = 30;
constexpr int statusWidth = 80;

}  // namespace

TopView::TopView(QWidget* parent)
    : QWidget(parent), leftButton_(new ItemButton(this)), rightButton_(new ItemButton(this)) {
    leftButton_->setObjectName(QStringLiteral("leftButton"));
    rightButton_->setObjectName(QStringLiteral("rightButton"));
    connect(leftButton_, &ItemButton::clicked, this, &TopView::leftBtnTouch);
    connect(rightButton_, &ItemButton::clicked, this, &TopView::rightBtnTouch);
    leftButton_->setTag(1);
    rightButton_->setTag(2);
}

void TopView::activateLeftButton() {
    leftButton_->setPaixuImageHidden(false);
    rightButton_->setPaixuImageHidden(true);
}

void TopView::touch(ItemButton* touched, ItemButton* other) {
    if (!touched->isPaixuImageHidden()) {
        touched->setOn(!touched->on());
    }
    touched->setPaixuImageHidden(false);
    other->setPaixuImageHidden(true);
}

void TopView::leftBtnTouch() {
    touch(leftButton_, rightButton_);
    if (delegate_ != nullptr) {
        delegate_->tableHeaderViewLeftBtnTouch(leftButton_);
    }
}

void TopView::rightBtnTouch() {
    touch(rightButton_, leftButton_);
    if (delegate_ != nullptr) {
        delegate_->tableHeaderViewRightBtnTouch(rightButton_);
    }
}

QSize TopView::sizeHint() const {
    return {240, std::max(headerHeight, fontMetrics().height() + 10)};
}

QSize TopView::minimumSizeHint() const {
    return {leftButton_->sizeHint().width() + statusRoom(), sizeHint().height()};
}

int TopView::statusRoom() const {
    // The button begins as far before the status texts of the rows as for the usual font, where the
    // header has 80 units and a row 60.
    constexpr int given = statusWidth - 60;
    return std::max({statusWidth, rightButton_->sizeHint().width(),
                     ListCell::statusRoom(fontMetrics()) + given});
}

void TopView::resizeEvent(QResizeEvent* /*event*/) {
    layOutButtons();
}

void TopView::layOutButtons() {
    const int right = statusRoom();
    const int buttonHeight = height();
    const QRect left(0, 1, width() - right, buttonHeight);
    leftButton_->setGeometry(fromBottomLeft(left, height()));
    rightButton_->setGeometry(fromBottomLeft({width() - right, 1, right, buttonHeight}, height()));
}
