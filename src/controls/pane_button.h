#pragma once

#include <QStyle>
#include <QToolButton>

class QPainter;

/// A button with a picture and nothing around it, for rows and panes: it darkens under the pointer
/// and more when it is pressed, and the keyboard's focus has a frame. Its ground is light whatever
/// the desktop's palette is. The picture grows with the font.
class PaneButton final : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

    enum class Dress {
        Plain,
        Framed,  ///< stands out as a button
        Sign,    ///< no button to the eye: shows how another control stands
    };
    void setDress(Dress dress);

    /// The picture with four units around it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Dress dress_ = Dress::Plain;
};

/// What PaneButton and the flat push buttons of the panes have around their contents, and its
/// width on each side.
void drawPaneButtonFrame(QPainter& painter, const QRect& button, QStyle::State state);
inline constexpr int paneButtonMargin = 4;
