#pragma once

#include <chrono>
#include <cstdio>

#include "app/main_window.h"
#include "state/user_defaults.h"
#include "ui_Main.h"

/// Milliseconds that the work takes.
template <typename Work>
double milliseconds(Work&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

/// One measured round, a line on standard output: figure and floor.
inline void tell(double figure, double floor = 0) {
    std::printf("%.6f %.6f\n", figure, floor);
    std::fflush(stdout);
}

/// Lets everything that is under way come to its end: saves, icons, commands that were started.
void comeToRest();

/// The program's main window on the user's store, at rest, with room for so many rows.
struct ShownWindow {
    explicit ShownWindow(int rows);

    DragDropView& list() { return *main.outlets().fileListView; }
    DragDropTableView& table() { return *list().tableView(); }

    UserDefaults defaults{UserDefaults::standardFile()};
    MainWindow main;
};

/// Each kind of work is measured `rounds` times, in turns with its floor where it has one.
void measurePress(int rounds);
void measureScroll(int rounds);
void measureSort(int rounds);
/// Drops as many paths as the list has; they need not exist.
void measureDrop(int rounds);
/// One item of a quit pass or a launch pass over the whole list.
void measurePass(bool quit);
