#pragma once

#include <set>
#include <string>

/// Paths, each once.
using Items = std::set<std::string>;

/// The items that are still to be told in the background, kept in a file of the session's runtime
/// folder. One process in a session holds them at a time, until its end, however it comes.
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
    /// Replaces what is kept.
    void write(const Items& items) const;

private:
    int descriptor_ = -1;
};
