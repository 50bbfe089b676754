#include "process.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::filesystem::path folderOf(pid_t id) {
    return std::filesystem::path("/proc") / std::to_string(id);
}

std::vector<std::string> textsIn(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::string> texts;
    for (std::string text; std::getline(stream, text, '\0');)
        texts.push_back(text);
    return texts;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The text behind the label at the start of a line, as in "flags:\t0100002".
std::vector<std::string> valuesIn(const std::filesystem::path& file, const std::string& label) {
    std::ifstream stream(file);
    std::vector<std::string> values;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with(label))
            values.push_back(line.substr(label.size()));
    }
    return values;
}

}  // namespace

std::optional<Process> Process::withId(pid_t id) {
    std::error_code failed;
    Process process{id, textsIn(folderOf(id) / "cmdline"), textsIn(folderOf(id) / "environ"),
                    std::filesystem::read_symlink(folderOf(id) / "cwd", failed)};
    if (failed || process.arguments.empty() || process.environment.empty())
        return {};
    return process;
}

bool Process::writesFiles() const {
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(folderOf(id) / "fd", failed)) {
        struct stat target {};
        const auto number = entry.path().filename();
        if (number == "1" || number == "2" || stat(entry.path().c_str(), &target) != 0 ||
            !S_ISREG(target.st_mode))
            continue;
        for (const auto& flags : valuesIn(folderOf(id) / "fdinfo" / number, "flags:")) {
            if ((std::stoul(flags, nullptr, 8) & O_ACCMODE) != O_RDONLY)
                return true;
        }
    }
    return static_cast<bool>(failed);
}

std::set<ino_t> Process::watchedInodes() const {
    std::set<ino_t> inodes;
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(folderOf(id) / "fdinfo", failed)) {
        for (const auto& watch : valuesIn(entry.path(), "inotify ")) {
            const auto start = watch.find("ino:");
            if (start != std::string::npos)
                inodes.insert(std::stoul(watch.substr(start + 4), nullptr, 16));
        }
    }
    return inodes;
}

bool Process::waitForEnd(int milliseconds) const {
    const auto descriptor = static_cast<int>(syscall(SYS_pidfd_open, id, 0));
    if (descriptor < 0)
        return errno == ESRCH;
    pollfd ended{descriptor, POLLIN, 0};
    const bool done = poll(&ended, 1, milliseconds) == 1;
    close(descriptor);
    return done;
}

bool Process::startAgain(const std::vector<std::string>& newArguments) const {
    std::vector<std::string> texts{arguments.front()};
    texts.insert(texts.end(), newArguments.begin(), newArguments.end());
    auto variables = environment;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, workingFolder.c_str());
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, number, "/dev/null", O_RDWR, 0);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t started = 0;
    const int error = posix_spawnp(&started, texts.front().c_str(), &actions, &attributes,
                                   pointersTo(texts).data(), pointersTo(variables).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0;
}
