#pragma once

#include <chrono>
#include <functional>

/// Asks every few milliseconds until the condition holds; false when it does not in time.
bool waitFor(std::chrono::milliseconds limit, const std::function<bool()>& condition);
