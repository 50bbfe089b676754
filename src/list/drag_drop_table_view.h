#pragma once

#include <memory>
#include <unordered_map>

#include <QListView>
#include <QTimer>

#include "list/list_cell.h"
#include "state/item_list.h"

class QDragEnterEvent;
class PaneButton;
struct Notification;
class TableRowsModel;

/// Where the table gets its rows from.
class TableDataSource {
public:
    virtual ~TableDataSource() = default;
    virtual int numberOfRowsInTableView() const = 0;
    /// A fresh cell for `row`; an unconfigured one for a row beyond the list. Comes at once: with
    /// the icon that was last known, or a placeholder.
    virtual std::shared_ptr<ListCell> viewForRow(int row) const = 0;
    /// The row's icon, which may take a while to find; null for a row beyond the list.
    virtual QIcon iconOfRow(int row) const = 0;
    virtual int heightOfRow(int row) const = 0;
    /// The row's title, by which typing finds it; empty for a row beyond the list.
    virtual QString titleOfRow(int row) const = 0;
};

/// A column of a table loaded from an interface file.
struct TableColumn {
    QString identifier;
    QString title;
    QFont headerFont;
    Qt::Alignment headerAlignment = Qt::AlignLeft;
    int width = 100;
    int minimumWidth = 0;
    bool editable = false;
    bool userResizable = false;
};

/// The table that holds the row cells: one row of 40 units for each record of the last reload.
///
/// Its own selection (selectedRow()) is apart from the list's current row and survives a reload.
/// Only the rows in view have cells, and only the row under the pointer has button widgets.
class DragDropTableView final : public QListView {
    Q_OBJECT

public:
    explicit DragDropTableView(QWidget* parent = nullptr);
    ~DragDropTableView() override;

    /// Not owned; must outlive the table or be unset.
    void setDataSource(TableDataSource* source);
    /// Takes the row count anew and makes fresh cells. Reports no selection change, even when the
    /// selected row is gone.
    void reloadData();
    /// The selected row, or -1.
    int selectedRow() const;
    /// The row of the last click, or -1 when it was below the last row.
    int clickedRow() const { return clickedRow_; }
    /// The row that keyboard commands start from and that assistive technology reads as selected:
    /// the list's current row.
    void setCurrentRow(int row);
    int currentRow() const { return currentRow_; }
    int rowHeight() const;
    void scrollToRow(int row);

    bool usesAlternatingRowBackgroundColors() const { return alternating_; }
    void setUsesAlternatingRowBackgroundColors(bool alternating) { alternating_ = alternating; }

    /// Selects a row as a user's choice does: reported also when the table had it selected while
    /// the list's current row was another.
    void selectRow(int row);

    /// Shows that what is dragged over the list will be added, and where: at its end.
    void setDropShown(bool shown);

    /// Has the row's icon found once the window has nothing better to do, and the row painted anew.
    void wantIcon(int row);
    /// The cell of the row, made when it is first asked for. Kept until the next reload, or until
    /// many rows have been scrolled past.
    std::shared_ptr<ListCell> cellForRow(int row) const;
    PaneButton* checkButton() const { return checkButton_; }
    PaneButton* deletedButton() const { return deletedButton_; }

    // What a table that comes from an interface file does; the list view makes its own.
    void initWithInterfaceFile();
    void addColumn(const QString& identifier, const QString& title);
    /// Observes "changeTable", which nobody posts.
    void changeNotification(const Notification& /*notification*/) {}
    QList<TableColumn>& tableColumns() { return tableColumns_; }

    ItemList fileLists;  ///< empty, and read by nobody

signals:
    void reloaded();
    void selectionDidChange();
    void doubleAction();
    /// The user asked for the context menu of a row.
    void contextMenuRequested(int row, const QPoint& globalPosition);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void tellCurrentRow();
    void requestMenuOfCurrentRow();
    int rowAt(const QPoint& position) const;
    void makeHoverButtons();
    void setHoveredRow(int row);
    void placeHoverButtons();
    void loadIcons();

    TableDataSource* source_ = nullptr;
    TableRowsModel* rows_;
    mutable std::unordered_map<int, std::shared_ptr<ListCell>> cells_;
    QList<int> rowsWithoutIcon_;
    QTimer iconTimer_;
    PaneButton* checkButton_;
    PaneButton* deletedButton_;
    QList<TableColumn> tableColumns_;
    int hoveredRow_ = -1;
    int clickedRow_ = -1;
    int currentRow_ = -1;
    int toldRow_ = -1;              // the one that assistive technology takes for the current row
    bool clickStartedHere_ = true;  // and not on one of the hover buttons
    bool alternating_ = false;
    bool reloading_ = false;
    bool dropShown_ = false;
};
