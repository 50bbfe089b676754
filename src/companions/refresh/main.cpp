#include <charconv>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "refresh.h"

/// Prints a line for each running file manager that could not be told: its name, a tab, and the
/// key that makes it look again. With -c, windows that are in order are left alone.
int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    int seconds = 0;
    const bool onlyWrong = !arguments.empty() && arguments[0] == "-c";
    if (onlyWrong)
        arguments.erase(arguments.begin());
    if (arguments.size() > 1 && arguments[0] == "-w") {
        const auto& text = arguments[1];
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
        if (error != std::errc() || *end != '\0')
            arguments.clear();
        else
            arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (arguments.empty()) {
        std::cerr << "usage: refresh [-c] [-w seconds] file ...\n";
        return 1;
    }
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const std::vector<std::filesystem::path> items(arguments.begin(), arguments.end());
    for (const auto& [manager, keys] : refreshWindows(items, onlyWrong))
        std::cout << manager << '\t' << keys << '\n';
    return 0;
}
