#pragma once

#include <chrono>
#include <functional>

/// Asks every few milliseconds until the condition holds; false when it does not in time.
bool waitFor(std::chrono::milliseconds limit, const std::function<bool()>& condition);

/// Ends the process with status 1 if it still runs then, whatever it waits for: a bus or a display
/// that accepts connections and never speaks must not hold up who waits for this process.
void endAfter(std::chrono::milliseconds limit);
