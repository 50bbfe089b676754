#include "list/drag_drop_table_view.h"

#include <utility>

#include <QAbstractListModel>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

#include "controls/looks.h"
#include "controls/pane_button.h"
#include "list/accessible_items.h"
#include "platform/bundle.h"
#include "platform/notification_center.h"
#include "platform/shown_text.h"

/// The rows as of the last reload; what they show is asked of the data source.
class TableRowsModel final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : count_;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        return source_ != nullptr && role == Qt::DisplayRole ? source_->titleOfRow(index.row())
                                                             : QVariant();
    }
    void setSource(const TableDataSource* source) { source_ = source; }
    // Rows come and go at the end: a row is nothing but its number.
    void setCount(int count) {
        if (count > count_) {
            beginInsertRows({}, count_, count - 1);
            count_ = count;
            endInsertRows();
        } else if (count < count_) {
            beginRemoveRows({}, count, count_ - 1);
            count_ = count;
            endRemoveRows();
        }
    }

private:
    const TableDataSource* source_ = nullptr;
    int count_ = 0;
};

namespace {

// Cells out of view are dropped once there are more than a few screens of them.
constexpr size_t mostCells = 256;
// Icons are looked up for this long at a time, between other events.
constexpr int iconTurn = 4;  // milliseconds

class CellDelegate final : public QStyledItemDelegate {
public:
    explicit CellDelegate(DragDropTableView* table) : QStyledItemDelegate(table), table_(table) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        const auto cell = table_->cellForRow(index.row());
        cell->drawRect(*painter, option.rect);
        if (!cell->iconIsFresh) {
            table_->wantIcon(index.row());
        }
        if (table_->hasFocus() && index.row() == table_->currentRow()) {
            painter->setPen(QPen(QColor(255, 255, 255, 200), 1));
            painter->drawRect(option.rect.adjusted(2, 2, -3, -3));
        }
        painter->restore();
    }
    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return {1, table_->rowHeight()};
    }

private:
    DragDropTableView* table_;
};

}  // namespace

DragDropTableView::DragDropTableView(QWidget* parent)
    : QListView(parent), rows_(new TableRowsModel(this)) {
    setObjectName(QStringLiteral("tableView"));
    setAccessibleName(tr("Items"));
    setFrameShape(QFrame::NoFrame);
    setModel(rows_);
    setItemDelegate(new CellDelegate(this));
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    // Rows are clear and their text is black, so the ground is light whatever the palette.
    QPalette light = palette();
    light.setColor(QPalette::Base, Qt::white);
    setPalette(light);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!reloading_) {
            emit selectionDidChange();
        }
    });
    iconTimer_.setSingleShot(true);
    connect(&iconTimer_, &QTimer::timeout, this, &DragDropTableView::loadIcons);
    makeHoverButtons();
}

DragDropTableView::~DragDropTableView() = default;

void DragDropTableView::makeHoverButtons() {
    const auto make = [this](const char* imageKey, const char* name) {
        auto* button = new PaneButton(viewport());
        button->setObjectName(QLatin1String(name));
        button->setIcon(Bundle::imageNamed(
            Bundle::localizedString(QLatin1String(imageKey), QStringLiteral("Main"))));
        button->setIconSize({20, 20});
        button->setFocusPolicy(Qt::NoFocus);
        button->hide();
        return button;
    };
    checkButton_ = make("searchTitle", "checkButton");
    checkButton_->setToolTip(tr("Reveal in the file manager"));
    deletedButton_ = make("removeTitle", "deletedButton");
    deletedButton_->setToolTip(tr("Remove from the list"));
    // A reload in answer to the press makes fresh cells: hold this one until it is through.
    connect(checkButton_, &PaneButton::clicked, this, [this] {
        clickStartedHere_ = false;
        const auto cell = cellForRow(hoveredRow_);
        cell->searchFilePath();
    });
    connect(deletedButton_, &PaneButton::clicked, this, [this] {
        clickStartedHere_ = false;
        const auto cell = cellForRow(hoveredRow_);
        cell->delatedFilePath();
    });
}

void DragDropTableView::setDataSource(TableDataSource* source) {
    source_ = source;
    rows_->setSource(source);
}

int DragDropTableView::rowHeight() const {
    return std::max(source_ != nullptr ? source_->heightOfRow(0) : 0,
                    ListCell::height(fontMetrics()));
}

void DragDropTableView::reloadData() {
    const int count = source_ != nullptr ? source_->numberOfRowsInTableView() : 0;
    {
        const QScopedValueRollback guard(reloading_, true);
        if (selectedRow() >= count) {
            selectionModel()->clear();
        }
        if (currentIndex().row() >= count) {
            // Qt would select a neighbour of the current row that goes, which nobody has chosen.
            selectionModel()->clearCurrentIndex();
        }
        rows_->setCount(count);
    }
    cells_.clear();
    rowsWithoutIcon_.clear();
    setHoveredRow(-1);
    viewport()->update();
    updateAccessibleItems(this);
    tellCurrentRow();
    emit reloaded();
}

int DragDropTableView::selectedRow() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

void DragDropTableView::setCurrentRow(int row) {
    currentRow_ = row;
    const QScopedValueRollback guard(reloading_, true);
    selectionModel()->setCurrentIndex(rows_->index(row), QItemSelectionModel::NoUpdate);
    tellCurrentRow();
}

void DragDropTableView::tellCurrentRow() {
    // A row that has just been added comes with the next reload.
    if (currentRow_ != toldRow_ && currentRow_ < rows_->rowCount()) {
        tellCurrentItem(this, std::exchange(toldRow_, currentRow_));
    }
}

// Past QListView, which would tell assistive technology of a row before it is the current one.
void DragDropTableView::selectionChanged(const QItemSelection& selected,
                                         const QItemSelection& deselected) {
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::selectionChanged(selected, deselected);
}

void DragDropTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::currentChanged(current, previous);
}

void DragDropTableView::selectRow(int row) {
    if (row < 0 || row >= rows_->rowCount()) {
        return;
    }
    if (selectedRow() == row && currentRow_ != row) {
        const QScopedValueRollback guard(reloading_, true);
        selectionModel()->clearSelection();
    }
    selectionModel()->setCurrentIndex(rows_->index(row), QItemSelectionModel::ClearAndSelect);
    scrollTo(rows_->index(row));
}

void DragDropTableView::scrollToRow(int row) {
    scrollTo(rows_->index(row));
}

std::shared_ptr<ListCell> DragDropTableView::cellForRow(int row) const {
    auto& cell = cells_[row];
    if (!cell) {
        cell = source_ != nullptr ? source_->viewForRow(row) : std::make_shared<ListCell>();
    }
    return cell;
}

void DragDropTableView::wantIcon(int row) {
    if (!rowsWithoutIcon_.contains(row)) {
        rowsWithoutIcon_.append(row);
        iconTimer_.start(0);
    }
}

void DragDropTableView::loadIcons() {
    QElapsedTimer turn;
    turn.start();
    while (!rowsWithoutIcon_.isEmpty() && !turn.hasExpired(iconTurn)) {
        const int row = rowsWithoutIcon_.takeFirst();
        const auto known = cells_.find(row);
        const QRect place = visualRect(rows_->index(row));
        // A row that has gone out of view asks again when it comes back.
        if (known == cells_.end() || !place.intersects(viewport()->rect())) {
            continue;
        }
        ListCell& cell = *known->second;
        cell.iconIsFresh = true;
        const QIcon icon = source_ != nullptr ? source_->iconOfRow(row) : QIcon();
        if (!icon.isNull() && icon.cacheKey() != cell.listIcon.cacheKey()) {
            cell.setCellIcon(icon);
            viewport()->update(place);
        }
    }
    if (!rowsWithoutIcon_.isEmpty()) {
        iconTimer_.start(0);
    }
}

int DragDropTableView::rowAt(const QPoint& position) const {
    return indexAt(position).row();
}

bool DragDropTableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        setHoveredRow(-1);
    } else if (event->type() == QEvent::Resize) {
        placeHoverButtons();
    }
    return QListView::viewportEvent(event);
}

void DragDropTableView::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    if (cells_.size() > mostCells) {
        cells_.clear();
        hoveredRow_ = -1;
    }
    const bool inside = viewport()->underMouse();
    setHoveredRow(inside ? rowAt(viewport()->mapFromGlobal(QCursor::pos())) : -1);
}

void DragDropTableView::setHoveredRow(int row) {
    if (row != hoveredRow_) {
        if (const auto left = cells_.find(hoveredRow_); left != cells_.end()) {
            left->second->mouseExited();
        }
        hoveredRow_ = row;
        if (row >= 0) {
            cellForRow(row)->mouseEntered();
        }
    }
    placeHoverButtons();
}

void DragDropTableView::placeHoverButtons() {
    if (hoveredRow_ < 0 || hoveredRow_ >= rows_->rowCount()) {
        checkButton_->hide();
        deletedButton_->hide();
        return;
    }
    const auto cell = cellForRow(hoveredRow_);
    const ListCell::Layout parts =
        cell->layout(visualRect(rows_->index(hoveredRow_)), fontMetrics());
    checkButton_->setGeometry(parts.checkButton);
    deletedButton_->setGeometry(parts.deletedButton);
    checkButton_->setAccessibleName(tr("Reveal %1").arg(shownName(cell->listTextField)));
    deletedButton_->setAccessibleName(tr("Remove %1").arg(shownName(cell->listTextField)));
    checkButton_->setVisible(!cell->checkButtonHidden);
    deletedButton_->setVisible(!cell->deletedButtonHidden);
}

void DragDropTableView::initWithInterfaceFile() {
    NotificationCenter::defaultCenter().addObserver(this, &DragDropTableView::changeNotification,
                                                    QStringLiteral("changeTable"));
    constexpr int headerPointSize = 50;
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSize(headerPointSize);
    if (!tableColumns_.isEmpty()) {
        TableColumn& first = tableColumns_.first();
        first = {
            first.identifier, QStringLiteral("name"), bold, Qt::AlignLeft, 265, 50, true, true};
        if (tableColumns_.size() >= 2) {
            TableColumn& status = tableColumns_.last();
            status = {status.identifier,
                      QStringLiteral("statues"),
                      bold,
                      Qt::AlignHCenter,
                      100,
                      50,
                      true,
                      true};
        } else {
            addColumn(QStringLiteral("2"), QStringLiteral("statues"));
        }
    }
    QTimer::singleShot(1000, this, &DragDropTableView::reloadData);
}

void DragDropTableView::addColumn(const QString& identifier, const QString& title) {
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSize(50);
    tableColumns_.append({identifier, title, bold, Qt::AlignHCenter, 100, 100, true, true});
}

void DragDropTableView::setDropShown(bool shown) {
    dropShown_ = shown;
    viewport()->update();
}

void DragDropTableView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (!dropShown_) {
        return;
    }
    QPainter painter(viewport());
    constexpr int line = 3;
    painter.setPen(QPen(focusColor, line));
    painter.drawRect(QRectF(viewport()->rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    const int end = visualRect(rows_->index(rows_->rowCount() - 1)).bottom() + 1;
    painter.fillRect(0, end, viewport()->width(), line, focusColor);
}

void DragDropTableView::dragEnterEvent(QDragEnterEvent* event) {
    // Drops are the list view's, which the event goes on to.
    event->ignore();
}
