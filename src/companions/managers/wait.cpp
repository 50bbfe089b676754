#include "wait.h"

#include <csignal>
#include <thread>

#include <sys/time.h>
#include <unistd.h>

bool waitFor(std::chrono::milliseconds limit, const std::function<bool()>& condition) {
    using namespace std::chrono_literals;
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

void endAfter(std::chrono::milliseconds limit) {
    std::signal(SIGALRM, [](int) { _exit(1); });
    const itimerval timer{{0, 0}, {limit.count() / 1000, limit.count() % 1000 * 1000}};
    setitimer(ITIMER_REAL, &timer, nullptr);
}
