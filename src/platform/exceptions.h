#pragma once

#include <stdexcept>

/// The platform's own exceptions. Nobody catches them on the way: Application::notify() reports
/// one that leaves an event handler to the log, and the program goes on.

/// An index outside a list.
class RangeException : public std::out_of_range {
public:
    using std::out_of_range::out_of_range;
};

/// A collection was changed while it was walked.
class CollectionMutatedException : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// A process could not be started.
class LaunchException : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
