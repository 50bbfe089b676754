#pragma once

#include <QObject>

/// Turns SIGTERM, SIGINT and SIGHUP into a signal of the event loop, so that the program can store
/// everything before it ends. At most one instance at a time; its destructor restores the default
/// handling.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

    /// Becomes readable with the first of these signals and stays so: to be polled, not read.
    /// Closed by the destructor. -1 when it could not be made.
    int descriptor() const;

    /// Does what such a signal does; safe in a signal handler. Does nothing before the first
    /// instance is made; not to be called after one was destroyed.
    static void request();

signals:
    /// Emitted once, with the first of these signals.
    void terminationRequested();
};
