#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <sys/types.h>

/// What is needed to know of a running program of the user in order to start it again.
struct Process {
    pid_t id = 0;
    std::vector<std::string> arguments;
    std::vector<std::string> environment;
    std::filesystem::path workingFolder;

    static std::optional<Process> withId(pid_t id);

    /// Whether it has files open for writing, its standard output aside: it may be copying.
    bool writesFiles() const;
    /// The inode numbers of all files and folders that it watches for changes.
    std::set<ino_t> watchedInodes() const;
    /// False when it did not end in time.
    bool waitForEnd(int milliseconds) const;
    /// Starts it again, in a session of its own, with these arguments behind the program's name.
    bool startAgain(const std::vector<std::string>& newArguments) const;
};
