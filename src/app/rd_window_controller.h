#pragma once

#include <functional>

#include <QObject>

class Hiding;
class QMainWindow;

/// The main window's controller: its title and the quit path.
class RDWindowController final : public QObject {
    Q_OBJECT

public:
    /// Window and hiding must outlive the controller. `isListShown` tells whether the window of a
    /// quit pass may show the names of the items.
    RDWindowController(QMainWindow& window, Hiding& hiding, std::function<bool()> isListShown,
                       QObject* parent = nullptr);

    /// Titles the window and binds its close button to closeApplication().
    void windowDidLoad();
    /// The quit path: with the quit preference on, every stored record is marked hidden and its
    /// item hidden, whether or not the list is unlocked; then the application terminates. It goes
    /// on running, and stayed() is emitted, when the user stops the pass, or does not want to quit
    /// after all because the changes cannot be saved. A call during another one does nothing.
    void closeApplication();
    /// Ends the innermost modal loop, if any runs. Always true: the window may close.
    bool windowShouldClose();

signals:
    /// The program goes on running; a quit pass may have marked stored records hidden.
    void stayed();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool hideAtQuit();
    bool askWhetherToLoseChanges();

    QMainWindow& window_;
    Hiding& hiding_;
    std::function<bool()> isListShown_;
    bool closing_ = false;
};
