#pragma once

#include <QList>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

/// Makes open windows of the desktop's file managers show what has become hidden or visible.
///
/// The work is done by a small program beside the companions, so that a file manager that is slow
/// or fails does not affect this one. It repeats by itself what file managers may not have taken in
/// at once.
class FileManagerRefresh final : public QObject {
    Q_OBJECT

public:
    /// A running file manager that could not be told, and the keys that make it look again.
    struct Unreached {
        QString manager;
        QString keys;
        bool operator==(const Unreached&) const = default;
    };

    /// `program`: path of the program "refresh" in the companions' folder.
    explicit FileManagerRefresh(QString program, QObject* parent = nullptr);
    /// Hands what is still to be told to a process that outlives this one.
    ~FileManagerRefresh() override;

    /// To be called after the item's state was changed. Returns at once; calls within one turn of
    /// the event loop are told together.
    void itemChanged(const QString& path);

    /// What the last telling found; empty before the first.
    const QList<Unreached>& unreached() const { return unreached_; }

signals:
    /// unreached() has changed.
    void unreachedChanged();

private:
    void startNext();
    void readAnswer();

    QString program_;
    QStringList changed_;  // and not told yet
    QStringList telling_;  // by the running process
    QTimer turn_;
    QProcess process_;
    QList<Unreached> unreached_;
};
