#pragma once

#include <QAbstractButton>
#include <QIcon>

/// The large hide/show switch. `on` means that the item is visible; it is apart from the button's
/// built-in state, and a press changes neither: the owner decides what the press did.
class RDSwitchButton final : public QAbstractButton {
    Q_OBJECT

public:
    /// On, showing "switch-pressed-right", without a title.
    explicit RDSwitchButton(QWidget* parent = nullptr);

    bool on() const { return on_; }
    /// Leaves the picture as it is: a caller that sets the value sets the image too.
    void setOn(bool on);
    /// Flips `on` and shows the matching picture.
    void setButtonOnOrOff();

    QString imageName() const { return imageName_; }
    void setImage(const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool on_ = true;
    QString imageName_;
    QIcon image_;
};
