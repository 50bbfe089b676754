#include "restart.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <exception>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include "managers/places.h"
#include "managers/sent_keys.h"
#include "managers/wait.h"
#include "process.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr const char* service = "org.pcmanfm.PCManFM";
constexpr const char* object = "/Application";
constexpr const char* interface = "org.pcmanfm.Application";

std::optional<Process> serviceProcess(const Bus& session) {
    const auto answer =
        session.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                     "GetConnectionUnixProcessID", g_variant_new("(s)", service));
    guint32 id = 0;
    if (answer)
        g_variant_get(answer.get(), "(u)", &id);
    return id == 0 ? std::nullopt : Process::withId(static_cast<pid_t>(id));
}

/// A window's title is the name of its folder, and the folder is among those that the program
/// watches. Looked for below the home folder and where disks are mounted.
class FolderSearch final {
public:
    explicit FolderSearch(std::set<ino_t> inodes) : inodes_(std::move(inodes)) {}

    std::optional<std::filesystem::path> find(const std::string& title) const {
        const std::array<std::filesystem::path, 6> roots{g_get_home_dir(), "/media", "/run/media",
                                                         "/mnt",           "/tmp",   "/"};
        const auto end = Clock::now() + 500ms;
        for (const auto& root : roots) {
            if (isIt(root, title))
                return root;
            if (auto found = findBelow(root, title, root == "/" ? 2 : 12, end))
                return found;
        }
        return {};
    }

private:
    bool isIt(const std::filesystem::path& path, const std::string& title) const {
        struct stat entry {};
        return path.filename() == title && stat(path.c_str(), &entry) == 0 &&
               S_ISDIR(entry.st_mode) && inodes_.contains(entry.st_ino);
    }

    std::optional<std::filesystem::path> findBelow(const std::filesystem::path& root,
                                                   const std::string& title, int depth,
                                                   Clock::time_point end) const {
        using Walk = std::filesystem::recursive_directory_iterator;
        std::error_code failed;
        Walk walk(root, std::filesystem::directory_options::skip_permission_denied, failed);
        for (; !failed && walk != Walk() && Clock::now() < end; walk.increment(failed)) {
            if (isIt(walk->path(), title))
                return walk->path();
            if (walk.depth() >= depth)
                walk.disable_recursion_pending();
        }
        return {};
    }

    std::set<ino_t> inodes_;
};

std::optional<std::vector<std::string>> openFolders(const Process& process) {
    const SentKeys display;
    const FolderSearch search(process.watchedInodes());
    if (!display.isConnected() || !display.windowsOf("pcmanfm-qt", SentKeys::Kind::Dialog).empty())
        return {};
    std::vector<std::string> folders;
    for (const auto& window : display.windowsOf("pcmanfm-qt")) {
        const auto folder = search.find(window.title);
        if (!folder)
            return {};
        folders.push_back(*folder);
    }
    return folders;
}

bool stays(std::string_view option) {
    return option == "--desktop" || option == "-d" || option == "--daemon-mode";
}

/// Whether it draws the desktop, and its profile. What else it was started with was for then.
std::vector<std::string> lastingOptions(const std::vector<std::string>& arguments) {
    std::vector<std::string> options;
    for (size_t number = 1; number < arguments.size(); ++number) {
        const auto& argument = arguments[number];
        const bool takesNext = argument == "-p" || argument == "--profile";
        if (stays(argument) || argument.starts_with("--profile=") || takesNext)
            options.push_back(argument);
        if (takesNext && number + 1 < arguments.size())
            options.push_back(arguments[++number]);
    }
    return options;
}

void turnOffWhatItWrote() {
    for (const auto& place : pcmanfmQtPlaces()) {
        try {
            if (place->state() == Place::State::On)
                place->turnOff();
        } catch (const std::exception& error) {
            g_printerr("killall: %s\n", error.what());
        }
    }
}

}  // namespace

bool restartPcmanfmQt(const Bus& session) {
    const auto process = serviceProcess(session);
    if (!process || process->writesFiles())
        return false;
    const auto folders = openFolders(*process);
    if (!folders)
        return false;
    session.call(service, object, interface, "quit");
    if (!process->waitForEnd(3000))
        return false;
    turnOffWhatItWrote();
    auto options = lastingOptions(process->arguments);
    auto left = *folders;
    const bool staysWithoutWindows = std::any_of(options.begin(), options.end(),
                                                 [](const auto& option) { return stays(option); });
    if (!staysWithoutWindows) {
        if (left.empty())
            return true;
        options.push_back(left.front());
        left.erase(left.begin());
    }
    if (!process->startAgain(options))
        return false;
    const auto runs = [&session] {
        const auto names = session.names();
        return std::find(names.begin(), names.end(), service) != names.end();
    };
    if (!left.empty() && !waitFor(5s, runs))
        return false;
    for (const auto& folder : left) {
        const char* const paths[] = {folder.c_str(), nullptr};
        session.call(service, object, interface, "launchFiles",
                     g_variant_new("(s^asbb)", folder.c_str(), paths, TRUE, FALSE));
    }
    return true;
}
