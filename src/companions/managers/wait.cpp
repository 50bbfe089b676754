#include "wait.h"

#include <thread>

bool waitFor(std::chrono::milliseconds limit, const std::function<bool()>& condition) {
    using namespace std::chrono_literals;
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(5ms);
    }
    return true;
}
