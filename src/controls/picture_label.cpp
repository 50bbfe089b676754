#include "controls/picture_label.h"

#include <QPainter>

#include "controls/looks.h"

void PictureLabel::setPicture(const QIcon& picture, const QSize& size) {
    picture_ = picture;
    size_ = size;
    updateGeometry();
    update();
}

void PictureLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawPicture(
        painter, picture_,
        QStyle::alignedRect(layoutDirection(), alignment() | Qt::AlignVCenter, size_, rect()));
}
