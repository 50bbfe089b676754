#pragma once

#include <set>
#include <string>

/// Paths, each once.
using Items = std::set<std::string>;

/// What is still to be told in the background, kept where the session keeps its files. One process
/// of the user and session holds it at a time; its end, however it comes, gives it free.
class PendingItems final {
public:
    /// Asks the process that holds them to end (by SIGTERM), waits until it has, and holds them
    /// instead. Goes on without them when they cannot be had.
    PendingItems();
    PendingItems(const PendingItems&) = delete;
    PendingItems& operator=(const PendingItems&) = delete;
    ~PendingItems();

    /// What the last holder had not told to the end.
    Items read() const;
    void write(const Items& items) const;

private:
    int descriptor_ = -1;
};
