#pragma once

#include <functional>

#include <QObject>

class Hiding;
class QMainWindow;

/// The main window's controller: its title and the quit path.
class RDWindowController final : public QObject {
    Q_OBJECT

public:
    /// Window and hiding must outlive the controller. `isListShown` tells whether names of items
    /// may be told.
    RDWindowController(QMainWindow& window, Hiding& hiding, std::function<bool()> isListShown,
                       QObject* parent = nullptr);

    /// Titles the window and binds its close button to closeApplication().
    void windowDidLoad();
    /// The quit path: with the quit preference on, every stored record is marked hidden and its
    /// item hidden, whether or not the list is unlocked; then the application terminates. The user
    /// may stop the pass and then stays; when the changes cannot be saved, the user is asked, and
    /// may stay. Runs once at a time.
    void closeApplication();
    /// Ends the modal loop that is running, if any; the window may close.
    bool windowShouldClose();

signals:
    /// The user has stayed; a quit pass may have marked the stored records hidden.
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
