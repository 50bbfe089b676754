#pragma once

#include <optional>

#include <QCache>
#include <QHash>
#include <QWidget>

#include "list/drag_drop_table_view.h"
#include "list/list_cell.h"
#include "list/top_view.h"
#include "state/item_list.h"

class QAction;
class QMimeData;
struct Notification;

/// Receives the selection report.
class DragDropViewDelegate {
public:
    virtual ~DragDropViewDelegate() = default;
    /// The current record, or null when nothing is left to be current.
    virtual void selectedTableLists(const ItemRecord* record) = 0;
};

/// Which record a drop of one path replaces, decided by a walk over the list that removes as it
/// goes: every record equal to the first match is removed. Throws CollectionMutatedException,
/// with the list already shortened, when records followed the match. A list that is handed many
/// paths is walked once.
class DropWalk {
public:
    explicit DropWalk(ItemList& list);
    /// Makes `path` the last record, visible.
    void drop(const QString& path);

private:
    ItemList& list_;
    QHash<QString, qsizetype> firstIndex_;
};

/// The list of the main window: a header bar over a one-column table. It holds the working copy of
/// the item list and the current row, which is apart from the table's own selection; it removes,
/// reveals, opens and sorts, takes dropped files, and stores the whole list whenever it adds or
/// removes records. It never hides or shows anything.
class DragDropView final : public QWidget,
                           public TopViewDelegate,
                           public ListCellDelegate,
                           public TableDataSource {
    Q_OBJECT
    Q_PROPERTY(QStringList editCommands READ editCommands)

public:
    explicit DragDropView(QWidget* parent = nullptr);
    ~DragDropView() override;

    /// Not owned; must outlive the view or be unset.
    void setDelegate(DragDropViewDelegate* delegate) { delegate_ = delegate; }
    /// Drops are accepted only while true; false at first.
    bool canDragDrop() const { return canDragDrop_; }
    void setCanDragDrop(bool can) { canDragDrop_ = can; }

    /// The working copy. No value while it was never loaded or was loaded from an absent list.
    const std::optional<ItemList>& fileLists() const { return fileLists_; }
    /// Loads the working copy; from now on it may be stored.
    void setFileLists(const std::optional<ItemList>& lists);
    /// Loads the stored list, makes the title header the active one and the first row current.
    void loadStoredList();
    /// Whether setFileLists() was called: a list that was never loaded is never stored, so that
    /// no path can write the empty working copy of a locked window over the stored list.
    bool isLoaded() const { return loaded_; }
    qsizetype count() const { return fileLists_ ? fileLists_->size() : 0; }
    /// Puts a record in place of another. Throws RangeException outside the list.
    void replaceRecord(qsizetype index, const ItemRecord& record);
    /// The remove command: removes the current record, reloads (which reports) and stores. Nothing
    /// without a current record.
    void removeCurrentRecord();
    /// Gives the records of the working copy, in its own order, the flags that those of their paths
    /// have in `lists`; reloads, which reports.
    void takeMarks(const ItemList& lists);
    /// Shows what is in memory after a handler that failed has shortened the list. Reports nothing.
    void showWhatIsThere();
    /// Stores the working copy as it stands, sorted order included; nothing while it was never
    /// loaded.
    void storeFileLists();

    int selectRowIndex() const { return selectRowIndex_; }
    /// Whether the current row names a record that is marked visible.
    bool isCurrentRecordVisible() const;
    /// Only the index: no report, no reload.
    void setSelectRowIndex(int index);

    TopView* topViw() const { return topViw_; }
    DragDropTableView* tableView() const { return tableView_; }

    /// Applies the alternating-colours preference, reloads the table and makes the selection
    /// report.
    void reloadData();
    /// Appends the records unchecked, makes the last one current, stores and reloads. The delegate
    /// is told twice.
    void addFileList(const QList<ItemRecord>& records);
    /// Sets the current row unchecked, makes the selection report and reloads the table.
    void selectTableViewCellForRowIndex(int index);
    /// Reloads the table only.
    void changeCellData(const Notification& notification);
    /// Nothing registers for it; an available handler.
    void changeNotification(const Notification& notification);
    /// Opens the clicked item when the preference is on and the item visible. Throws
    /// RangeException for a double-click below the last row.
    void doubleClick();

    void tableHeaderViewLeftBtnTouch(ItemButton* button) override;
    void tableHeaderViewRightBtnTouch(ItemButton* button) override;
    void checkCellBtnTouch(const ListCell& cell) override;
    void removeCellBtnTouch(const ListCell& cell) override;

    int numberOfRowsInTableView() const override { return static_cast<int>(count()); }
    std::shared_ptr<ListCell> viewForRow(int row) const override;
    QIcon iconOfRow(int row) const override;
    int heightOfRow(int /*row*/) const override { return 40; }
    QString titleOfRow(int row) const override;
    /// The value of every cell; never shown.
    QString objectValueForRow(int /*row*/) const { return QStringLiteral("1"); }

    /// The drag shows the copy cursor, whatever it carries.
    Qt::DropAction draggingEntered(const QMimeData* mimeData) const;
    Qt::DropAction draggingUpdated(const QMimeData* mimeData) const {
        return draggingEntered(mimeData);
    }
    /// The commands of the Edit menu that can be called now: "copy" with a current record, "paste"
    /// with addresses on the clipboard while drops are accepted.
    QStringList editCommands() const;
    /// Commands of the menu bar that stand first in a row's menu; they must outlive the view. The
    /// row is reported as the current one before its menu shows, so that they act on it.
    void setRowCommands(const QList<QAction*>& commands) { rowCommands_ = commands; }

    /// The whole drop; the records are in place when it returns. False when drops are refused.
    bool prepareForDragOperation(const QMimeData* mimeData);

public slots:
    /// Puts the current record on the clipboard: its address as a file and its path as text.
    void copy();
    /// What prepareForDragOperation() does with a drop, with what is on the clipboard; on the next
    /// turn of the event loop.
    void paste();

signals:
    /// The rows were shown anew: after every change of the list or of its current row, whether or
    /// not the delegate was told.
    void reloaded();
    /// The user has chosen, added, dropped, removed or sorted: `text` tells for the quiet line what
    /// cannot be seen of it, and is empty when there is nothing to tell.
    void happened(const QString& text);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void selectionReport();
    void removeRecordAt(int row);
    QString toldOfRemoval(const ItemRecord& record) const;
    void tableSelectionDidChange();
    void sort(const ItemButton* button);
    void showContextMenu(int row, const QPoint& position);

    TopView* topViw_;
    DragDropTableView* tableView_;
    DragDropViewDelegate* delegate_ = nullptr;
    std::optional<ItemList> fileLists_;
    int selectRowIndex_ = 0;
    bool canDragDrop_ = false;
    bool loaded_ = false;
    QList<QAction*> rowCommands_;
    mutable QCache<QString, QIcon> icons_;  // as last looked up
    Qt::DropActions draggingSourceOperationMask_ = Qt::CopyAction | Qt::LinkAction | Qt::MoveAction;
};
