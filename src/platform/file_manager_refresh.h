#pragma once

#include <chrono>

#include <QList>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

/// Makes open windows of the desktop's file managers show what has become hidden or visible.
///
/// The work is done by a small program beside the companions, so that neither a slow file manager
/// nor anything that goes wrong with one is felt here. File managers remember for some seconds
/// what is hidden in a folder, so they are told at once and twice more until that has run out.
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
    /// What is still to be told goes on without the program.
    ~FileManagerRefresh() override;

    /// To be called after the item's state was changed. Returns at once; calls within one turn of
    /// the event loop are told together.
    void itemChanged(const QString& path);

    /// What the last telling found; empty before the first.
    const QList<Unreached>& unreached() const { return unreached_; }

    /// How long after the first telling the second follows, and the third after that: for tests.
    void setRepeatAfter(std::chrono::milliseconds time) { repeatAfter_ = time; }

signals:
    /// unreached() has changed.
    void unreachedChanged();

protected:
    /// A repeat is due.
    void timerEvent(QTimerEvent* event) override;

private:
    struct Repeat {
        QStringList paths;
        int times;
    };

    void tellNew();
    void repeatLater(const Repeat& repeat);
    void startNext();
    void readAnswer();

    QString program_;
    std::chrono::milliseconds repeatAfter_{7000};
    QStringList changed_;         // since the last turn of the event loop
    QList<QStringList> waiting_;  // for the running process to end
    QList<Repeat> repeats_;       // in the order in which they are due
    QTimer turn_;
    QProcess process_;
    QList<Unreached> unreached_;
};
