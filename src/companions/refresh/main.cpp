#include <filesystem>
#include <iostream>
#include <vector>

#include "refresh.h"

/// Prints a line for each running file manager that could not be told: its name, a tab, and the
/// key that makes it look again.
int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: refresh file ...\n";
        return 1;
    }
    const std::vector<std::filesystem::path> items(argv + 1, argv + argc);
    for (const auto& [manager, keys] : refreshWindows(items))
        std::cout << manager << '\t' << keys << '\n';
    return 0;
}
