#pragma once

#include <QPushButton>

/// A platform button that carries a value of its own: `on` is what its owner tests, the built-in
/// state (QAbstractButton::isChecked()) only what is drawn. Neither changes the other.
///
/// In the main window it is the information pane's disclosure button (`on`: folded) and the
/// protection switch.
class RdCustomButton final : public QPushButton {
    Q_OBJECT

public:
    explicit RdCustomButton(QWidget* parent = nullptr);

    qint64 on() const { return on_; }
    void setOn(qint64 on);
    int state() const { return isChecked() ? 1 : 0; }
    /// Any value but 0 counts as on; does not emit clicked().
    void setState(qint64 state);

protected:
    /// Draws as the platform's button does, and nothing more.
    void paintEvent(QPaintEvent* event) override { QPushButton::paintEvent(event); }
    void keyPressEvent(QKeyEvent* event) override;

private:
    qint64 on_ = 0;
};
