#pragma once

#include <QStyle>
#include <QToolButton>

class QPainter;

/// A button with a picture and nothing around it, for rows and panes: it darkens under the pointer
/// and more when it is pressed, and the keyboard's focus has a frame. It is made for a light
/// background, whatever the desktop's palette is. The picture grows with the font.
class PaneButton final : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

    enum class Appearance {
        Plain,
        Framed,     ///< with a frame and a light background
        Indicator,  ///< the picture alone, which shows the state of another control
    };
    void setAppearance(Appearance appearance);

    /// The picture with four units around it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Appearance appearance_ = Appearance::Plain;
};

/// Draws what PaneButton and the flat push buttons of the panes have around their contents: the
/// shade of the state, and a frame for the keyboard's focus.
void drawPaneButtonFrame(QPainter& painter, const QRect& button, QStyle::State state);
/// The room around those contents on each side, in units.
inline constexpr int paneButtonMargin = 4;
