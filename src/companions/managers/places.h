#pragma once

#include <memory>
#include <vector>

/// One place where a file manager of the desktop remembers whether it shows hidden files.
class Place {
public:
    enum class State { Absent, Off, On };

    virtual ~Place() = default;
    /// Absent where the manager is not installed, has never stored the setting, or keeps it in a
    /// file that cannot be understood. Starts nothing and waits for nobody but a service that
    /// already runs.
    virtual State state() const = 0;
    /// Turns the setting off where it is on, and returns when that is stored. Throws an exception
    /// derived from std::exception when it cannot be, or when a file cannot be understood.
    virtual void turnOff() = 0;
};

/// All places on this desktop. Those that are read from files come first, the one that may ask a
/// service comes last.
std::vector<std::unique_ptr<Place>> allPlaces();
