#pragma once

#include <QToolButton>

class QPainter;

/// A button with a picture and nothing around it, for rows and panes: pressed it darkens, and the
/// keyboard's focus has a frame. Framed, it stands out as a button. Its ground is light whatever
/// the desktop's palette is.
class PaneButton final : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

    void setFramed(bool framed);

    /// The picture with four units around it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool framed_ = false;
};

/// What PaneButton and the flat push buttons of the panes have around their contents, and its
/// width on each side.
void drawPaneButtonFrame(QPainter& painter, const QRect& button, bool pressed, bool focused);
inline constexpr int paneButtonMargin = 4;
