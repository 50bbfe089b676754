#pragma once

#include <chrono>
#include <optional>

#include <QObject>
#include <QString>

#include "platform/file_request.h"

/// One running program for each store, so that two never write the same one.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    /// Tries to become the one that runs. `lockFile` stands beside the store; its folder is made
    /// when it is missing. Where no lock can be had (a file system without locks, a folder that
    /// cannot be written) the program runs all the same.
    explicit SingleInstance(const QString& lockFile, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// False when another program runs on the same store.
    bool isFirst() const { return first_; }
    /// Waits until the one that runs can be asked, or has ended and this is the first. False when
    /// neither happens within `longest`.
    bool waitForTurn(std::chrono::milliseconds longest);
    /// Asks the one that runs to bring its window forward, and to add these files first when there
    /// are any. False when it does not answer.
    bool activateFirst(const FileRequest& request);
    /// Asks the one that runs and waits for what it says; no value when it does not answer.
    std::optional<QStringList> askFirst(const FileRequest& request);
    /// From now on this program answers such requests with the signals.
    void listen();

signals:
    /// `token` lets the window take the focus where the desktop asks for one; may be empty.
    void activationRequested(const QByteArray& token);
    void filesGiven(const FileRequest& request);

private:
    bool tryLock();
    QString addressOfFirst() const;

    QString lockFile_;
    int lock_ = -1;
    bool first_ = true;
};
