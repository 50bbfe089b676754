// Reads the paths of changed items from standard input, each with a zero byte at its end, and
// tells the running file managers. Prints a line for each that could not be told: its name, a tab,
// and the key that makes it look again. After that it is done for its caller.
//
// File managers remember what is hidden in a folder for up to 14 seconds, so a process in the
// background tells them twice more. At most one lives in a session, for half a minute at most: a
// new one takes over what the old one had still to tell.
#include <array>
#include <chrono>
#include <csignal>
#include <ctime>
#include <iostream>
#include <string>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "managers/wait.h"
#include "pending_items.h"
#include "refresh.h"

namespace {

using namespace std::chrono_literals;

constexpr auto untilRepeat = 7s;
constexpr int repeats = 2;
constexpr auto longestTelling = 5s;
constexpr auto longestLife = 30s;  // more than all of it takes, unless tellings are cut short

Items readItems() {
    Items items;
    for (std::string item; std::getline(std::cin, item, '\0');) {
        items.insert(item);
    }
    return items;
}

/// In a process of its own, so that a bus or a display that never answers costs one telling alone.
void tell(const Items& items, bool onlyWrong) {
    const pid_t teller = fork();
    if (teller == 0) {
        endAfter(longestTelling);
        for (const auto& [manager, keys] : refreshWindows(items, onlyWrong)) {
            std::cout << manager << '\t' << keys << '\n';
        }
        std::cout.flush();
        _exit(0);
    }
    waitpid(teller, nullptr, 0);
}

/// False when the process was asked to end before the time was over.
bool sleepFor(std::chrono::seconds time, const sigset_t& endings) {
    const timespec limit{time.count(), 0};
    return sigtimedwait(&endings, nullptr, &limit) < 0;
}

void leaveCaller() {
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nothing, number);
    }
    close(nothing);
}

void tellInBackground(const Items& items, int answered) {
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGTERM);
    sigprocmask(SIG_BLOCK, &endings, nullptr);  // not in the middle of a telling
    endAfter(longestLife);
    setsid();
    if (chdir("/") != 0) {
        return;
    }
    const PendingItems pending;
    const auto takenOver = pending.read();
    auto all = takenOver;
    all.insert(items.begin(), items.end());
    pending.write(all);
    tell(items, false);
    leaveCaller();
    close(answered);
    if (!takenOver.empty()) {
        tell(takenOver, true);
    }
    for (int number = 0; number < repeats; ++number) {
        if (!sleepFor(untilRepeat, endings)) {
            return;
        }
        tell(all, true);
    }
    pending.write({});
}

}  // namespace

int main(int argc, char**) {
    if (argc != 1) {
        std::cerr << "usage: refresh <items, each with a zero byte at its end\n";
        return 1;
    }
    const auto items = readItems();
    std::array<int, 2> answer{};
    if (pipe2(answer.data(), O_CLOEXEC) != 0) {
        return 1;
    }
    const pid_t background = fork();
    if (background == 0) {
        close(answer[0]);
        tellInBackground(items, answer[1]);
        return 0;
    }
    // The background holds its end of the pipe until it has answered, or has ended.
    close(answer[1]);
    char nothing = 0;
    return background > 0 && ::read(answer[0], &nothing, 1) == 0 ? 0 : 1;
}
