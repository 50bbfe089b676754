#include "list/drag_drop_view.h"

#include <utility>

#include <QMenu>
#include <QVBoxLayout>

#include "platform/bundle.h"
#include "platform/item_visibility.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/notification_names.h"
#include "platform/shown_text.h"
#include "platform/workspace.h"
#include "state/preference_keys.h"
#include "state/readings.h"
#include "state/user_defaults.h"

namespace {

constexpr QColor currentRowColor{1, 92, 220};
constexpr QColor evenRowColor{255, 255, 255};
constexpr QColor oddRowColor{245, 245, 245};
constexpr int mostIcons = 500;

bool isShown(const ItemRecord& record) {
    return integerReading(record.visible()) == 1;
}

}  // namespace

DragDropView::DragDropView(QWidget* parent)
    : QWidget(parent),
      topViw_(new TopView(this)),
      tableView_(new DragDropTableView(this)),
      icons_(mostIcons) {
    NotificationCenter::defaultCenter().addObserver(this, &DragDropView::changeCellData,
                                                    notification_names::changeCellData);
    setAcceptDrops(true);
    // The header's buttons leave its last line free: the grey background shows there as a line.
    QPalette ground = palette();
    ground.setColor(QPalette::Window, QColor(128, 128, 128));
    setPalette(ground);
    setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(topViw_);
    layout->addWidget(tableView_);
    tableView_->setDataSource(this);
    tableView_->setUsesAlternatingRowBackgroundColors(preference(Preference::AlternatingRowColors));
    connect(tableView_, &DragDropTableView::selectionDidChange, this,
            &DragDropView::tableSelectionDidChange);
    topViw_->setDelegate(this);
    connect(tableView_, &DragDropTableView::reloaded, this, &DragDropView::reloaded);
    connect(tableView_, &DragDropTableView::doubleAction, this, &DragDropView::doubleClick);
    connect(tableView_, &DragDropTableView::contextMenuRequested, this,
            &DragDropView::showContextMenu);
}

DragDropView::~DragDropView() {
    NotificationCenter::defaultCenter().removeObserver(this, notification_names::changeCellData);
}

void DragDropView::setFileLists(const std::optional<ItemList>& lists) {
    fileLists_ = lists;
    loaded_ = true;
}

void DragDropView::loadStoredList() {
    setFileLists(UserDefaults::standardUserDefaults().itemList());
    topViw_->activateLeftButton();
    reloadData();
    selectTableViewCellForRowIndex(0);
}

void DragDropView::replaceRecord(qsizetype index, const ItemRecord& record) {
    fileLists_.value().replace(index, record);
}

void DragDropView::removeCurrentRecord() {
    // Before anything is stored: on a list that was never loaded this would store an empty one.
    if (selectRowIndex_ < 0 || selectRowIndex_ >= count()) {
        return;
    }
    removeRecordAt(selectRowIndex_);
    reloadData();
    storeFileLists();
    showWhatIsThere();
}

void DragDropView::removeRecordAt(int row) {
    const ItemRecord record = fileLists_->at(row);
    fileLists_->removeAt(row);
    emit happened(toldOfRemoval(record));
}

QString DragDropView::toldOfRemoval(const ItemRecord& record) const {
    // Asked of the disk: the mark says only what was asked for.
    return isItemHidden(record.filePath())
               ? tr("“%1” stays hidden: to get it back, add it again and press the switch twice.")
                     .arg(shownInLine(record.fileTitle()))
               : QString();
}

void DragDropView::takeMarks(const ItemList& lists) {
    QHash<QString, VisibleForm> marks;
    lists.forEach([&marks](const ItemRecord& record) {
        marks.insert(record.filePath(),
                     isShown(record) ? VisibleForm::StringOne : VisibleForm::StringZero);
    });
    for (qsizetype index = 0; index < count(); ++index) {
        ItemRecord record = fileLists_->at(index);
        const auto mark = marks.constFind(record.filePath());
        if (mark != marks.cend() && isShown(record) != (*mark == VisibleForm::StringOne)) {
            record.setVisible(*mark);
            fileLists_->replace(index, record);
        }
    }
    reloadData();
}

void DragDropView::showWhatIsThere() {
    if (selectRowIndex_ >= count()) {
        setSelectRowIndex(static_cast<int>(count()) - 1);
    }
    tableView_->reloadData();
}

void DragDropView::storeFileLists() {
    if (loaded_) {
        UserDefaults::standardUserDefaults().setItemList(fileLists_);
    }
}

void DragDropView::setSelectRowIndex(int index) {
    selectRowIndex_ = index;
    tableView_->setCurrentRow(index);
}

bool DragDropView::isCurrentRecordVisible() const {
    return selectRowIndex_ >= 0 && selectRowIndex_ < count() &&
           truthReading(fileLists_->at(selectRowIndex_).visible());
}

void DragDropView::selectionReport() {
    if (delegate_ != nullptr && selectRowIndex_ >= 0 && selectRowIndex_ < count()) {
        const ItemRecord record = fileLists_->at(selectRowIndex_);
        delegate_->selectedTableLists(&record);
    }
}

void DragDropView::tableSelectionDidChange() {
    emit happened({});
    setSelectRowIndex(std::max(tableView_->selectedRow(), 0));
    selectionReport();
    tableView_->reloadData();
}

void DragDropView::reloadData() {
    tableView_->setUsesAlternatingRowBackgroundColors(preference(Preference::AlternatingRowColors));
    tableView_->reloadData();
    tableView_->setCurrentRow(selectRowIndex_);
    selectionReport();
}

void DragDropView::addFileList(const QList<ItemRecord>& records) {
    if (!fileLists_) {
        fileLists_.emplace();
    }
    for (const ItemRecord& record : records) {
        fileLists_->append(record);
    }
    setSelectRowIndex(static_cast<int>(count()) - 1);
    selectionReport();
    storeFileLists();
    reloadData();
    tableView_->scrollToRow(selectRowIndex_);
    emit happened({});
}

void DragDropView::selectTableViewCellForRowIndex(int index) {
    setSelectRowIndex(index);
    selectionReport();
    tableView_->reloadData();
    tableView_->setCurrentRow(index);
}

void DragDropView::changeCellData(const Notification& /*notification*/) {
    tableView_->reloadData();
}

void DragDropView::changeNotification(const Notification& notification) {
    Log::line(QStringLiteral("notification.name:") + notification.name);
    draggingSourceOperationMask_ = Qt::CopyAction | Qt::LinkAction | Qt::MoveAction;
}

void DragDropView::doubleClick() {
    if (!preference(Preference::OpenOnDoubleClick)) {
        return;
    }
    // No check on the row: a double-click below the last one is an index outside the list.
    const ItemRecord record = fileLists_.value_or(ItemList()).at(tableView_->clickedRow());
    if (isShown(record)) {
        Workspace::shared().openFile(record.filePath());
    }
}

void DragDropView::sort(const ItemButton* button) {
    // Sorting is not stored: the next write carries the order. The current row stays where it is.
    if (fileLists_) {
        fileLists_->sortByTitle(button->on());
    }
    emit happened({});
    tableView_->reloadData();
}

void DragDropView::tableHeaderViewLeftBtnTouch(ItemButton* button) {
    Log::line(QStringLiteral("排序1"));
    sort(button);
}

void DragDropView::tableHeaderViewRightBtnTouch(ItemButton* button) {
    Log::line(QStringLiteral("排序2"));
    sort(button);
}

void DragDropView::checkCellBtnTouch(const ListCell& cell) {
    Workspace::shared().selectFile(cell.filePath);
}

void DragDropView::removeCellBtnTouch(const ListCell& cell) {
    if (count() > 0) {
        const int removed = cell.rowIndex;
        removeRecordAt(removed);
        const int remaining = static_cast<int>(count());
        if (selectRowIndex_ < 0 || selectRowIndex_ >= remaining) {
            selectRowIndex_ = remaining - 1;
        }
        if (delegate_ != nullptr && (selectRowIndex_ == removed || remaining == 0)) {
            if (selectRowIndex_ >= 0) {
                const ItemRecord record = fileLists_->at(selectRowIndex_);
                delegate_->selectedTableLists(&record);
            } else {
                delegate_->selectedTableLists(nullptr);
            }
        }
        tableView_->reloadData();
        tableView_->setCurrentRow(selectRowIndex_);
    }
    storeFileLists();
}

std::shared_ptr<ListCell> DragDropView::viewForRow(int row) const {
    auto cell = std::make_shared<ListCell>();
    const bool alternating = preference(Preference::AlternatingRowColors);
    if (row < 0 || row >= count()) {
        return cell;
    }
    const ItemRecord& record = fileLists_->at(row);
    const QString path = record.filePath();
    if (row == selectRowIndex_) {
        cell->backgroundColor = currentRowColor;
    } else if (alternating) {
        cell->backgroundColor = row % 2 == 0 ? evenRowColor : oddRowColor;
    } else {
        cell->backgroundColor = Qt::transparent;
    }
    cell->delegate = const_cast<DragDropView*>(this);
    cell->rowIndex = row;
    cell->filePath = path;
    cell->setSelected(isShown(record));
    // The workspace has to look at the file. What the row showed before stands meanwhile.
    if (const QIcon* known = icons_.object(path)) {
        cell->setCellIcon(*known);
    }
    cell->setCellTitle(record.fileTitle());
    return cell;
}

QIcon DragDropView::iconOfRow(int row) const {
    if (row < 0 || row >= count()) {
        return {};
    }
    const QString path = fileLists_->at(row).filePath();
    QIcon icon = Workspace::shared().iconForFile(path);
    icons_.insert(path, new QIcon(icon));
    return icon;
}

QString DragDropView::titleOfRow(int row) const {
    return row >= 0 && row < count() ? fileLists_->at(row).fileTitle() : QString();
}

void DragDropView::showContextMenu(int row, const QPoint& position) {
    // What the menu bar's commands act on is what was reported last.
    selectTableViewCellForRowIndex(row);
    const auto cell = tableView_->cellForRow(row);
    QMenu menu(this);
    menu.addActions(rowCommands_);
    for (QAction* command : std::as_const(rowCommands_)) {
        command->setShortcutVisibleInContextMenu(true);
    }
    QAction* reveal =
        menu.addAction(tr("&Reveal in File Manager"), this, [cell] { cell->searchFilePath(); });
    reveal->setEnabled(cell->selected());
    menu.addAction(tr("Re&move from List"), this, [cell] { cell->delatedFilePath(); });
    menu.exec(position);
}
