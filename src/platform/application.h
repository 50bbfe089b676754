#pragma once

#include <QApplication>

class QEventLoop;

/// The application object: the platform's event loop with three behaviours that the program relies
/// on (exceptions that leave a handler are reported, windows run modally until somebody
/// stops the modal loop, terminating ends every loop).
class Application final : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    /// Reports an exception that leaves an event handler to the log; the program goes on.
    bool notify(QObject* receiver, QEvent* event) override;

    /// A quit that comes from outside, such as a log-out, terminates at once: only the window's own
    /// close and the quit command take the quit path.
    bool event(QEvent* event) override;

    /// Shows `window` application-modally and returns when stopModal() was called for it (or when
    /// it was closed by other means). The window is hidden then, not destroyed.
    static void runModalForWindow(QWidget* window);
    /// Shows `window` in front of `below` (may be null) and centred over it.
    static void presentOver(QWidget* window, const QWidget* below);
    /// Ends the innermost modal loop that runs; does nothing without one.
    static void stopModal();

    /// Ends the event loop, and the program with it, without any question.
    static void terminate();

    /// Drops the clicks and keys that have come in while the program handled no event, so that they
    /// do not act on what is shown by then. All other pending events are kept.
    void discardPendingInput();

signals:
    /// An exception has left a handler: what is in memory and what is shown may differ.
    void exceptionReported();

private:
    bool discardsInput_ = false;
};
