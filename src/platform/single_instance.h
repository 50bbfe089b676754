#pragma once

#include <chrono>
#include <optional>

#include <QObject>
#include <QString>

#include "platform/file_request.h"

/// One running program for each store, so that two never write the same one: the first holds a lock
/// for as long as this object lives, and answers the later ones over the session's bus.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    /// Tries to become the one that runs. `lockFile` stands beside the store; its folder is made
    /// when it is missing. Where no lock can be had (a file system without locks, a folder that
    /// cannot be written) the program runs all the same.
    explicit SingleInstance(const QString& lockFile, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// False when another program ran on the same store when this last tried to take the lock.
    bool isFirst() const { return first_; }
    /// Blocks until the one that runs can be asked, or has ended and this is the first. False when
    /// neither happens within `longest`.
    bool waitForTurn(std::chrono::milliseconds longest);
    /// Asks the one that runs to bring its window forward and, when there are any, to add the
    /// request's files, whatever its kind. Blocks; false when there is no answer within three
    /// seconds.
    bool activateFirst(const FileRequest& request);
    /// Asks the one that runs to hide or show, and blocks until it has, up to ten minutes: a dialog
    /// that is open there may have to be closed first. The sentences on what was not done; no value
    /// when there is no answer.
    std::optional<QStringList> askFirst(const FileRequest& request);
    /// Starts to answer such requests, with the signals below. Only for the first, once the
    /// signals are connected; does nothing without a session bus.
    void listen();

signals:
    /// `token` lets the window take the focus where the desktop asks for one; may be empty.
    void activationRequested(const QByteArray& token);
    /// Files to add, or a request to hide or show; the caller of one that has an `answer` waits for
    /// it.
    void filesGiven(const FileRequest& request);

private:
    bool tryLock();
    QString addressOfFirst() const;

    QString lockFile_;
    int lock_ = -1;
    bool first_ = true;
};
