#pragma once

#include <QWidget>

#include "list/item_button.h"

/// What the header bar reports: the button that was clicked.
class TopViewDelegate {
public:
    virtual ~TopViewDelegate() = default;
    virtual void tableHeaderViewLeftBtnTouch(ItemButton* button) = 0;
    virtual void tableHeaderViewRightBtnTouch(ItemButton* button) = 0;
};

/// The header bar above the list: " Item" on the left, "  Status" on the right, in place of the
/// table's own header. The button whose arrow shows is the active one.
class TopView final : public QWidget {
    Q_OBJECT

public:
    /// Both arrows are shown until activateLeftButton() or a click.
    explicit TopView(QWidget* parent = nullptr);

    ItemButton* leftButton() const { return leftButton_; }
    ItemButton* rightButton() const { return rightButton_; }
    /// Not owned; may be null.
    void setDelegate(TopViewDelegate* delegate) { delegate_ = delegate; }
    /// Shows the left arrow and hides the right one: the state of a freshly loaded list.
    void activateLeftButton();

    /// The first click on an inactive button makes it the active one, each further click flips its
    /// direction; the delegate is told every time.
    void leftBtnTouch();
    void rightBtnTouch();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int statusRoom() const;
    void layOutButtons();
    static void touch(ItemButton* touched, ItemButton* other);

    ItemButton* leftButton_;
    ItemButton* rightButton_;
    TopViewDelegate* delegate_ = nullptr;
};
