#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The floor of a bulk change: reads a file and replaces it with what was read, once. With a
/// number as the second argument it does so that often and prints the nanoseconds of each time.
namespace {

bool rewrite(const std::string& path) {
    const int from = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (from < 0 || fstat(from, &status) != 0) {
        return false;
    }
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    const bool whole = read(from, text.data(), text.size()) == status.st_size;
    close(from);
    const std::string fresh = path + ".new";
    const int to = open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const bool written = to >= 0 && write(to, text.data(), text.size()) == status.st_size;
    close(to);
    return whole && written && rename(fresh.c_str(), path.c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 1;
    for (int i = 0; i < rounds; ++i) {
        timespec begin{};
        timespec end{};
        clock_gettime(CLOCK_MONOTONIC, &begin);
        if (argc < 2 || !rewrite(argv[1])) {
            return 1;
        }
        clock_gettime(CLOCK_MONOTONIC, &end);
        if (argc > 2) {
            std::printf("%ld\n",
                        (end.tv_sec - begin.tv_sec) * 1'000'000'000 + end.tv_nsec - begin.tv_nsec);
        }
    }
    return 0;
}
