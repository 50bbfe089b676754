#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QHash>
#include <QMimeData>

#include "list/drag_drop_view.h"
#include "platform/exceptions.h"
#include "platform/file_addresses.h"
#include "platform/log.h"
#include "platform/shown_text.h"

namespace {

QString describe(const ItemList& list) {
    QStringList records;
    records.reserve(list.size());
    list.forEach([&](const ItemRecord& record) { records << Log::describe(record.toVariant()); });
    return u'(' + records.join(QStringLiteral(", ")) + u')';
}

}  // namespace

DropWalk::DropWalk(ItemList& list) : list_(list) {
    firstIndex_.reserve(list.size());
    qsizetype index = 0;
    list.forEach([&](const ItemRecord& record) {
        if (const QString path = record.filePath(); !firstIndex_.contains(path)) {
            firstIndex_.insert(path, index);
        }
        ++index;
    });
}

void DropWalk::drop(const QString& path) {
    const auto match = firstIndex_.constFind(path);
    if (match != firstIndex_.cend()) {
        const bool recordsFollow = *match + 1 < list_.size();
        if (recordsFollow) {
            // The removal is made on the very list that is being walked: the next step of the walk
            // fails, with memory already shortened.
            const ItemRecord matched = list_.at(*match);
            list_.removeIf([&](const ItemRecord& record) { return record == matched; });
            throw CollectionMutatedException("the item list was changed while it was walked");
        }
        list_.removeAt(*match);
    }
    firstIndex_.insert(path, list_.size());
    list_.append(ItemRecord::forPath(path, VisibleForm::StringOne));
}

Qt::DropAction DragDropView::draggingEntered(const QMimeData* mimeData) const {
    // The answer is not looked at: every drag shows the copy cursor.
    [[maybe_unused]] const bool files = mimeData->hasUrls();
    return Qt::CopyAction;
}

bool DragDropView::prepareForDragOperation(const QMimeData* mimeData) {
    if (!canDragDrop_) {
        return false;
    }
    const FileAddresses dropped = filesAt(mimeData->urls());
    if (!fileLists_) {
        fileLists_.emplace();
    }
    emit happened(dropped.someUnreadable
                      ? tr("Some of the dropped items could not be added: they are not on this "
                           "computer, or their names are not valid text.")
                      : QString());
    if (dropped.paths.isEmpty()) {
        return true;
    }
    DropWalk walk(*fileLists_);
    for (const QString& path : dropped.paths) {
        try {
            walk.drop(path);
        } catch (const CollectionMutatedException&) {
            const ItemRecord record = ItemRecord::forPath(path, VisibleForm::StringOne);
            const QStringList told{
                tr("“%1” was in the list already: it has been taken out, and the rest of the drop "
                   "was not added.")
                    .arg(shownInLine(record.fileTitle())),
                toldOfRemoval(record)};
            emit happened(told.join(u' ').trimmed());
            throw;
        }
    }
    Log::line(QStringLiteral(">>> ") + describe(*fileLists_));
    storeFileLists();
    setSelectRowIndex(std::max(tableView_->selectedRow(), 0));
    selectionReport();
    tableView_->reloadData();
    tableView_->setCurrentRow(selectRowIndex_);
    // The current row stays, so that nothing else would tell of rows that are out of view.
    tableView_->scrollToRow(static_cast<int>(count()) - 1);
    return true;
}

QStringList DragDropView::editCommands() const {
    QStringList commands;
    if (selectRowIndex_ >= 0 && selectRowIndex_ < count()) {
        commands << QStringLiteral("copy");
    }
    const QMimeData* clipboard = QGuiApplication::clipboard()->mimeData();
    if (canDragDrop_ && clipboard != nullptr && clipboard->hasUrls()) {
        commands << QStringLiteral("paste");
    }
    return commands;
}

void DragDropView::copy() {
    const QString path = fileLists_.value().at(selectRowIndex_).filePath();
    const QUrl address = QUrl::fromLocalFile(path);
    auto* copied = new QMimeData;
    copied->setUrls({address});
    copied->setText(path);
    // What file managers ask for before they paste a file.
    copied->setData(QStringLiteral("x-special/gnome-copied-files"), "copy\n" + address.toEncoded());
    QGuiApplication::clipboard()->setMimeData(copied);
}

void DragDropView::paste() {
    // Queued: a path that is listed already may end it with an exception, which must not go
    // through the menu that is being closed.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (const QMimeData* clipboard = QGuiApplication::clipboard()->mimeData()) {
                prepareForDragOperation(clipboard);
            }
        },
        Qt::QueuedConnection);
}

void DragDropView::dragEnterEvent(QDragEnterEvent* event) {
    event->setDropAction(draggingEntered(event->mimeData()));
    event->accept();
    tableView_->setDropShown(canDragDrop_ && event->mimeData()->hasUrls());
}

void DragDropView::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    tableView_->setDropShown(false);
}

void DragDropView::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(draggingUpdated(event->mimeData()));
    event->accept();
}

void DragDropView::dropEvent(QDropEvent* event) {
    tableView_->setDropShown(false);
    // Always a copy: a source that thinks its files were moved would delete them.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!prepareForDragOperation(event->mimeData())) {
        event->ignore();
    }
}
