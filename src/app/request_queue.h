#pragma once

#include <functional>

#include <QList>
#include <QObject>
#include <QTimer>

#include "platform/file_request.h"

class DragDropView;
class Hiding;

/// What is asked of the running program from outside its window, one request after the other. While
/// a dialog is open they wait for its end.
class RequestQueue final : public QObject {
    Q_OBJECT

public:
    /// `canEditorItem`: whether the list may be changed now. The list and hiding must outlive this.
    RequestQueue(DragDropView& list, Hiding& hiding, std::function<bool()> canEditorItem,
                 QObject* parent = nullptr);

    void take(const FileRequest& request);

signals:
    /// A request to hide or show met a locked list: the user is to be asked for the password.
    /// `token` as in the request.
    void locked(const QByteArray& token);
    /// For the quiet line: what was not added.
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
