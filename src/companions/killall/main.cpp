#include <iostream>
#include <string_view>

#include "reset.h"

int main(int argc, char** argv) {
    if (argc != 2 || std::string_view(argv[1]) != "Finder") {
        std::cerr << "usage: killall Finder\n";
        return 1;
    }
    for (const auto& name : resetRunningManagers())
        std::cerr << "killall: " << name << " goes on showing hidden files until it is restarted\n";
    return 0;
}
