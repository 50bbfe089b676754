#pragma once

#include <functional>

#include <QList>
#include <QObject>
#include <QTimer>

#include "platform/file_request.h"

class DragDropView;
class Hiding;

/// Carries out what is asked of the running program from outside its window, one request after the
/// other. While a dialog is open they wait until it is closed.
class RequestQueue final : public QObject {
    Q_OBJECT

public:
    /// `canEditorItem`: whether the list may be changed now. The list and hiding must outlive this.
    RequestQueue(DragDropView& list, Hiding& hiding, std::function<bool()> canEditorItem,
                 QObject* parent = nullptr);

    /// Carries the request out, now or when no dialog is open, and answers it. While the list is
    /// locked or the settings are not read, a request to hide or show is refused at once, and one
    /// to add is dropped when its turn comes, without a message.
    void take(const FileRequest& request);

signals:
    /// A request to hide or show was refused: the user is to be asked for the password. `token` as
    /// in the request.
    void locked(const QByteArray& token);
    /// A request to add was carried out: for the quiet line, what was not added; empty when all
    /// was.
    void happened(const QString& text);

private:
    void work();
    void add(const FileRequest& request);
    void change(const FileRequest& request);
    void refuse(const FileRequest& request);
    static void answer(const FileRequest& request, const QStringList& sentences);

    DragDropView& list_;
    Hiding& hiding_;
    std::function<bool()> canEditorItem_;
    QList<FileRequest> waiting_;
    QTimer again_;
};
