#include <QDragEnterEvent>
#include <QHash>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

#include "list/drag_drop_view.h"
#include "platform/exceptions.h"
#include "platform/log.h"

namespace {

struct DroppedPaths {
    QStringList paths;
    bool someUnreadable = false;
};

bool isHere(const QUrl& url) {
    const QString host = url.host();
    return url.isLocalFile() &&
           (host.isEmpty() || host == QLatin1String("localhost") ||
            host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0);
}

// The file names on the drag, as absolute paths in the drag's order. Names that are no valid text
// cannot be kept as one, and addresses on other machines are no files here.
DroppedPaths droppedPaths(const QMimeData* data) {
    DroppedPaths dropped;
    for (const QUrl& url : data->urls()) {
        const QString path = isHere(url) ? url.path(QUrl::FullyDecoded) : QString();
        if (path.isEmpty() || path.contains(QChar::ReplacementCharacter)) {
            dropped.someUnreadable = true;
        } else {
            dropped.paths << path;
        }
    }
    return dropped;
}

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
    const DroppedPaths dropped = droppedPaths(mimeData);
    if (!fileLists_) {
        fileLists_.emplace();
    }
    emit dropRefused(dropped.someUnreadable
                         ? tr("Some of the dropped items could not be added: their names or places "
                              "are not files on this computer that can be written as text.")
                         : QString());
    if (dropped.paths.isEmpty()) {
        return true;
    }
    DropWalk walk(*fileLists_);
    for (const QString& path : dropped.paths) {
        walk.drop(path);
    }
    Log::line(QStringLiteral(">>> ") + describe(*fileLists_));
    storeFileLists();
    setSelectRowIndex(std::max(tableView_->selectedRow(), 0));
    selectionReport();
    tableView_->reloadData();
    tableView_->setCurrentRow(selectRowIndex_);
    return true;
}

void DragDropView::dragEnterEvent(QDragEnterEvent* event) {
    event->setDropAction(draggingEntered(event->mimeData()));
    event->accept();
}

void DragDropView::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(draggingUpdated(event->mimeData()));
    event->accept();
}

void DragDropView::dropEvent(QDropEvent* event) {
    // Always a copy: a source that thinks its files were moved would delete them.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!prepareForDragOperation(event->mimeData())) {
        event->ignore();
    }
}
