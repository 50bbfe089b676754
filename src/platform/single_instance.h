#pragma once

#include <QObject>
#include <QString>

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
    /// Asks the one that runs to bring its window forward. False when it cannot be reached.
    bool activateFirst();
    /// From now on this program answers such a request with activationRequested().
    void listen();

signals:
    /// `token` lets the window take the focus where the desktop asks for one; may be empty.
    void activationRequested(const QByteArray& token);

private:
    QString lockFile_;
    int lock_ = -1;
    bool first_ = true;
};
