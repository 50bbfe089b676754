#pragma once

#include <QAbstractButton>
#include <QColor>

/// One of the two buttons of the header bar: a fixed title chosen by its tag, and a small arrow
/// for the sort direction.
class ItemButton final : public QAbstractButton {
    Q_OBJECT

public:
    /// Descending (`on` false), arrow shown, no title until a tag is set.
    explicit ItemButton(QWidget* parent = nullptr);

    /// 1: " Item"; 2: "  Status"; any other draws no title. The leading blanks belong to them.
    void setTag(int tag);
    int tag() const { return tag_; }

    /// Sort direction: true ascending, false descending.
    bool on() const { return on_; }
    void setOn(bool on);

    /// The sort arrow. The header whose arrow is shown is the active one.
    void setPaixuImageHidden(bool hidden);
    bool isPaixuImageHidden() const { return paixuImageHidden_; }

    /// Grounds with and without the pointer over the button.
    QColor mouseEnteredColor() const { return mouseEnteredColor_; }
    void setMouseEnteredColor(const QColor& color) { mouseEnteredColor_ = color; }
    QColor mouseExitedColor() const { return mouseExitedColor_; }
    void setMouseExitedColor(const QColor& color) { mouseExitedColor_ = color; }

    QIcon backgroundImage;  ///< never used

    QSize sizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString title() const;
    void updateDescription();

    QColor mouseEnteredColor_{170, 170, 170};
    QColor mouseExitedColor_{Qt::white};
    QColor backgroundColor_ = mouseExitedColor_;
    int tag_ = 0;
    bool on_ = false;
    bool paixuImageHidden_ = false;
};
