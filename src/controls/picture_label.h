#pragma once

#include <QIcon>
#include <QLabel>

/// A label that shows a picture, drawn in the pixels of the screen that it is on. It is placed by
/// the label's horizontal alignment and centred vertically.
class PictureLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// `size`, in device-independent pixels, becomes the label's size hint and least size. A null
    /// picture leaves the label empty.
    void setPicture(const QIcon& picture, const QSize& size);

    QSize sizeHint() const override { return size_; }
    QSize minimumSizeHint() const override { return size_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon picture_;
    QSize size_;
};
