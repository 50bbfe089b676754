#pragma once

#include <QMainWindow>

#include "app/app_delegate.h"
#include "app/rd_window_controller.h"
#include "app/view_controller.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

/// The program's main window on the user's store, as the launch builds it, for work that is
/// measured from inside.
class MainWindow final {
public:
    MainWindow();

    /// Builds the window's state from the store.
    void load();
    /// Shows the window with room for `rows` rows and lets it come to rest.
    void show(int rows);

    DragDropView& list() { return *outlets_.fileListView; }
    DragDropTableView& table() { return *list().tableView(); }
    const Ui::Main& outlets() const { return outlets_; }
    QMainWindow& window() { return window_; }
    ViewController& controller() { return viewController_; }

private:
    UserDefaults defaults_;
    QMainWindow window_;
    Ui::Main outlets_;
    AppDelegate delegate_;
    ViewController viewController_;
};

/// Lets everything that is under way come to its end: saves, icons, commands that were started.
void comeToRest();
