#include <chrono>
#include <iostream>
#include <string_view>

#include "managers/wait.h"
#include "reset.h"

int main(int argc, char** argv) {
    using namespace std::chrono_literals;
    if (argc != 2 || std::string_view(argv[1]) != "Finder") {
        std::cerr << "usage: killall Finder\n";
        return 1;
    }
    endAfter(10s);
    for (const auto& name : resetRunningManagers()) {
        std::cerr << "killall: " << name << " goes on showing hidden files in its open windows\n";
    }
    return 0;
}
