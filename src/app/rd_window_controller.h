#pragma once

#include <QObject>

class Hiding;
class QMainWindow;

/// The main window's controller: its title and the quit path.
class RDWindowController final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the controller.
    RDWindowController(QMainWindow& window, Hiding& hiding, QObject* parent = nullptr);

    /// Titles the window and binds its close button to closeApplication().
    void windowDidLoad();
    /// The quit path: with the quit preference on, every stored record is marked hidden and its
    /// item hidden, whether or not the list is unlocked; then the application terminates. Runs
    /// once, however often it is asked.
    void closeApplication();
    /// Ends the modal loop that is running, if any; the window may close.
    bool windowShouldClose();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QMainWindow& window_;
    Hiding& hiding_;
    bool closing_ = false;
};
