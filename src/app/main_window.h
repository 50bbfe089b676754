#pragma once

#include <memory>

#include <QElapsedTimer>
#include <QMainWindow>

#include "app/app_delegate.h"
#include "app/list_state.h"
#include "app/quiet_line.h"
#include "app/rd_window_controller.h"
#include "app/request_queue.h"
#include "app/view_controller.h"
#include "hiding/hiding.h"
#include "hiding/information_pane.h"
#include "hiding/item_adding.h"
#include "hiding/item_commands.h"
#include "hiding/item_switch.h"
#include "password/password_gate.h"
#include "platform/after_paint.h"
#include "platform/open_panel.h"
#include "platform/shell.h"

namespace Ui {
class Main;
}

/// The main window with everything behind it: loads the interface file "Main", makes the parts of
/// the program, gives each the controls that it touches, and connects them. No other class connects
/// parts to each other.
///
/// The standard user defaults must exist before it and outlive it.
class MainWindow final {
public:
    /// `openPanel` is how files to add are chosen.
    explicit MainWindow(OpenPanel openPanel = runOpenPanel);
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Builds the window's state from the store, the launch pass included; once, before show().
    void load();
    void show() { window_.show(); }
    /// Tries again to read a store that could not be read, and then starts with it. Also done
    /// whenever the window gets the focus.
    void readStoreAgain();
    /// Brings the window to the front; `token` lets it take the focus where the desktop asks for
    /// one, and may be empty.
    void bringForward(const QByteArray& token);

    /// Carries out what is asked from outside the window; see RequestQueue::take().
    void take(const FileRequest& request) { requests_.take(request); }

    QMainWindow& window() { return window_; }
    const Ui::Main& outlets() const { return *outlets_; }
    AppDelegate& delegate() { return delegate_; }
    ViewController& viewController() { return viewController_; }
    RDWindowController& windowController() { return windowController_; }

private:
    void connectControls();
    void connectQuietLine();
    void tellUnmetMarks();
    void stayPainted();
    void followStore();

    QMainWindow window_;
    std::unique_ptr<Ui::Main> outlets_;
    QuietLine quietLine_;
    Hiding hiding_;
    AppDelegate delegate_;
    ItemCommands itemCommands_;
    PasswordGate passwordGate_;
    InformationPane informationPane_;
    ItemSwitch itemSwitch_;
    ItemAdding itemAdding_;
    ListState listState_;
    AfterPaint unmetMarks_;
    ViewController viewController_;
    RDWindowController windowController_;
    RequestQueue requests_;
    QElapsedTimer sincePainted_;
    WhileWaiting waiting_{[this] {
        stayPainted();
        return true;
    }};
};
