#pragma once

#include <chrono>
#include <cstdio>

#include <QStringList>

/// Milliseconds that the work takes.
template <typename Work>
double milliseconds(Work&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

/// One measured round, a line on standard output: a name and its figures, figure and floor first.
template <typename... Figure>
void tell(const char* name, Figure... figures) {
    std::printf("%s", name);
    (std::printf(" %.6f", static_cast<double>(figures)), ...);
    std::printf("\n");
    std::fflush(stdout);
}

/// The kinds of work, each measured `rounds` times against its floor in turns. All but the passes
/// leave the window at rest between two rounds.
void measurePress(int rounds);
void measureScroll(int rounds);
void measureSort(int rounds);
/// `folder` holds nothing; the paths need not exist.
void measureDrop(int rounds, int dropped);
/// One round of these is a pass over `part` items of the list.
void measureLaunchPass(int part);
void measureQuitPass(int part);
