#pragma once

#include <QString>

#include "platform/after_paint.h"

class ItemRecord;
class QLabel;
class QWidget;
namespace Ui {
class Main;
}

/// The information pane: icon, title, kind, place, size and dates of one item.
class InformationPane {
public:
    /// `outlets`: the loaded interface file "Main"; must outlive the pane.
    explicit InformationPane(const Ui::Main& outlets);

    /// Fills the pane with what is known of the record's item. Of an item that no longer exists
    /// type and dates stay empty and the size reads zero. The icon follows after the texts,
    /// and so does the first kind of all.
    void showItem(const ItemRecord& record);
    void clear();

    /// Folds the ten labels away, or brings them back; icon and title stay.
    void setLabelsHidden(bool hidden);

private:
    void dressTitle();
    void showLookedUp();

    const Ui::Main& outlets_;
    QString path_;
    AfterPaint lookup_;
    bool typesAreRead_ = false;
};
