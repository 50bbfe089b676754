#pragma once

#include <QObject>

/// Turns SIGTERM, SIGINT and SIGHUP into a signal of the event loop, so that the program ends
/// cleanly with everything stored. One instance; the handlers stay until it is destroyed.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

    /// Becomes readable with the first of these signals; only to be looked at. -1 for none.
    int descriptor() const;

    /// Does what such a signal does; nothing without an instance.
    static void request();

signals:
    void terminationRequested();
};
