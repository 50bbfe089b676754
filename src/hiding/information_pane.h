#pragma once

#include <functional>

#include <QString>

#include "platform/after_paint.h"

class DragDropView;
class ItemCommands;
class ItemRecord;
class PaneButton;
class PictureLabel;
class QLabel;
class QWidget;
class RDSwitchButton;
class RdCustomButton;
class WrapLabel;
struct Notification;

/// The information pane beside the list: what is known of the current item. It also keeps the
/// switch and the item commands in step with the current item, and has the button that folds the
/// pane.
class InformationPane final {
public:
    /// Not owned; must outlive the pane.
    struct Outlets {
        QWidget* customInfoView;
        QWidget* textScrollCiew;  // the introductory text, shown in place of the pane
        PictureLabel* fileIconView;
        WrapLabel* filleTitle;
        QLabel* kinTitle;
        WrapLabel* kinDescLabel;
        QLabel* whereTitle;
        WrapLabel* whereDescLabel;
        QLabel* sizeTitle;
        WrapLabel* sizeDescLabel;
        QLabel* createdTitle;
        WrapLabel* createdDescLabel;
        QLabel* modifiedTitle;
        WrapLabel* modifiedDescLabel;
        RdCustomButton* dianjibutton;
        PaneButton* sanjiao;
        RDSwitchButton* switchButton;
    };
    /// `canEditorItem`: whether the list may be changed now. All must outlive the pane.
    InformationPane(const Outlets& outlets, DragDropView& list, ItemCommands& commands,
                    std::function<bool()> canEditorItem);

    /// The selection report; null when nothing is left to be current. Does not ask the password
    /// gate.
    void selectedTableLists(const ItemRecord* record);
    /// Shows the pane while the list has rows, and the introductory text otherwise.
    void showOrHide() const;
    /// Folds the pane, or opens it again, by the button's own value. Does nothing while the list is
    /// locked or empty.
    void touchEvent(RdCustomButton* sender) const;
    /// The menu's command to do so. The notification's "hidden" only sets what the button shows.
    void showOrHideInfomation(const Notification& notification) const;

private:
    void showItem(const ItemRecord& record);
    void clear();
    void setLabelsHidden(bool hidden) const;
    void showIcon() const;

    Outlets outlets_;
    DragDropView& list_;
    ItemCommands& commands_;
    std::function<bool()> canEditorItem_;
    QString path_;
    AfterPaint icon_;
};
