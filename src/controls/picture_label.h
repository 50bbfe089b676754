#pragma once

#include <QIcon>
#include <QLabel>

/// A label that shows a picture, sharp at the scale of the screen that it is on.
class PictureLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// `size` in units; a null picture leaves its place empty.
    void setPicture(const QIcon& picture, const QSize& size);

    QSize sizeHint() const override { return size_; }
    QSize minimumSizeHint() const override { return size_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon picture_;
    QSize size_;
};
