#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "managers/bus.h"
#include "managers/places.h"
#include "managers/wait.h"

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

int read() {
    endAfter(std::chrono::milliseconds(500));  // every press of the switch waits for the answer
    bool exists = false;
    for (const auto& place : allPlaces()) {
        const auto state = place->state();
        if (state == Place::State::On) {
            std::cout << "YES\n";
            return 0;
        }
        exists = exists || state == Place::State::Off;
    }
    if (!exists) {
        return doesNotExist(knownDomain, knownKey);
    }
    std::cout << "NO\n";
    return 0;
}

int turnOff() {
    int status = 0;
    for (const auto& place : allPlaces()) {
        try {
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
    if (!reads && !writes) {
        return explain();
    }
    if (arguments[1] != knownDomain || arguments[2] != knownKey) {
        return doesNotExist(arguments[1], arguments[2]);
    }
    if (writes && !meansNo(arguments[3])) {
        return explain();
    }
    if (!Bus::isAtHand()) {  // GLib would start one of its own for the settings and wait for it
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
    }
    return reads ? read() : turnOff();
}
