#include "app/request_queue.h"

#include <utility>

#include <QApplication>

#include "hiding/hiding.h"
#include "hiding/list_request.h"
#include "list/drag_drop_view.h"
#include "state/user_defaults.h"

using Kind = FileRequest::Kind;

RequestQueue::RequestQueue(DragDropView& list, Hiding& hiding, std::function<bool()> canEditorItem,
                           QObject* parent)
    : QObject(parent), list_(list), hiding_(hiding), canEditorItem_(std::move(canEditorItem)) {
    // No signal tells when the last of several dialogs is closed.
    constexpr int aMoment = 100;  // milliseconds
    again_.setInterval(aMoment);
    connect(&again_, &QTimer::timeout, this, &RequestQueue::work);
}

void RequestQueue::take(const FileRequest& request) {
    if (request.kind != Kind::Add && !canEditorItem_()) {
        // At once: the dialog that is open may be the one that asks for the password.
        refuse(request);
        return;
    }
    waiting_.append(request);
    work();
}

void RequestQueue::work() {
    while (!waiting_.isEmpty()) {
        if (QApplication::activeModalWidget() != nullptr) {
            again_.start();
            return;
        }
        const FileRequest request = waiting_.takeFirst();
        if (!canEditorItem_() || !list_.isLoaded()) {
            refuse(request);
        } else if (request.kind == Kind::Add) {
            add(request);
        } else {
            change(request);
        }
    }
    again_.stop();
}

void RequestQueue::refuse(const FileRequest& request) {
    if (request.kind == Kind::Add) {
        return;  // without a message, as any other attempt to add to a locked list
    }
    emit locked(request.token);
    answer(request, {UserDefaults::standardUserDefaults().isRead()
                         ? lockedSentence()
                         : UserDefaults::standardUserDefaults().problem()});
}

void RequestQueue::answer(const FileRequest& request, const QStringList& sentences) {
    if (request.answer) {
        request.answer(sentences);
    }
}

void RequestQueue::change(const FileRequest& request) {
    ItemList lists = list_.fileLists().value_or(ItemList());
    const bool wasEmpty = lists.isEmpty();
    const RequestOutcome outcome = carryOut(request, lists, hiding_);
    list_.setFileLists(lists);
    list_.storeFileLists();
    if (wasEmpty) {
        list_.setSelectRowIndex(0);
    }
    list_.reloadData();
    answer(request, outcome.sentences);
}

void RequestQueue::add(const FileRequest& request) {
    ItemList lists = list_.fileLists().value_or(ItemList());
    const qsizetype before = lists.size();
    const RequestOutcome outcome = carryOut(request, lists, hiding_);
    QList<ItemRecord> added;
    for (qsizetype row = before; row < lists.size(); ++row) {
        added << lists.at(row);
    }
    if (!added.isEmpty()) {
        list_.addFileList(added);
    }
    if (outcome.current >= 0) {
        list_.selectTableViewCellForRowIndex(static_cast<int>(outcome.current));
        list_.tableView()->scrollToRow(static_cast<int>(outcome.current));
    }
    emit happened(outcome.sentences.join(u' '));
}
