#pragma once

#include <memory>
#include <string>
#include <vector>

/// One place where a file manager of the desktop remembers whether it shows hidden files.
class Place {
public:
    enum class State { Absent, Off, On };

    virtual ~Place() = default;
    /// Absent where the manager is not installed or has never stored the setting. Starts nothing
    /// and waits for nobody but a service that already runs.
    virtual State state() const = 0;
    /// Turns the setting off and returns when that is stored. Throws an exception derived from
    /// std::exception when it cannot be.
    virtual void turnOff() = 0;
};

/// All places on this desktop. Those that are read from files come first, the one that may ask a
/// service comes last.
std::vector<std::unique_ptr<Place>> allPlaces();

/// Those of PCManFM-Qt alone, one for each of its profiles.
std::vector<std::unique_ptr<Place>> pcmanfmQtPlaces();
