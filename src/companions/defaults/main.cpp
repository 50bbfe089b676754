#include <algorithm>
#include <array>
#include <cctype>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include <sys/time.h>
#include <unistd.h>

#include "managers/places.h"

namespace {

constexpr std::string_view knownDomain = "com.apple.finder";
constexpr std::string_view knownKey = "AppleShowAllFiles";

int explain() {
    std::cerr << "usage: defaults read com.apple.finder AppleShowAllFiles\n"
                 "       defaults write com.apple.finder AppleShowAllFiles NO\n";
    return 1;
}

int doesNotExist(std::string_view domain, std::string_view key) {
    std::cerr << "The domain/default pair of (" << domain << ", " << key << ") does not exist\n";
    return 1;
}

/// Without a session bus GLib would start one of its own and wait for it.
void avoidStartingBus() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    const bool atHand =
        std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr ||
        (runtime != nullptr && access((std::filesystem::path(runtime) / "bus").c_str(), F_OK) == 0);
    if (!atHand)
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
}

/// Every press of the switch waits for the answer: with a bus that accepts connections and never
/// speaks, ending without one is better than never.
void limitTime() {
    std::signal(SIGALRM, [](int) { _exit(1); });
    const itimerval limit{{0, 0}, {0, 500000}};
    setitimer(ITIMER_REAL, &limit, nullptr);
}

int read() {
    limitTime();
    bool exists = false;
    for (const auto& place : allPlaces()) {
        const auto state = place->state();
        if (state == Place::State::On) {
            std::cout << "YES\n";
            return 0;
        }
        exists = exists || state == Place::State::Off;
    }
    if (!exists)
        return doesNotExist(knownDomain, knownKey);
    std::cout << "NO\n";
    return 0;
}

int turnOff() {
    int status = 0;
    for (const auto& place : allPlaces()) {
        try {
            if (place->state() == Place::State::On)
                place->turnOff();
        } catch (const std::exception& error) {
            std::cerr << "defaults: " << error.what() << '\n';
            status = 1;
        }
    }
    return status;
}

bool meansNo(std::string value) {
    std::transform(value.begin(), value.end(), value.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    constexpr std::array<std::string_view, 3> forms{"no", "0", "false"};
    return std::find(forms.begin(), forms.end(), value) != forms.end();
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool reads = arguments.size() == 3 && arguments[0] == "read";
    const bool writes = arguments.size() == 4 && arguments[0] == "write";
    if (!reads && !writes)
        return explain();
    if (arguments[1] != knownDomain || arguments[2] != knownKey)
        return doesNotExist(arguments[1], arguments[2]);
    if (writes && !meansNo(arguments[3]))
        return explain();
    avoidStartingBus();
    return reads ? read() : turnOff();
}
