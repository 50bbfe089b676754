// chflags hidden|nohidden file ...
//
// Hides items from the file managers, or shows them again; it takes the arguments of the macOS
// command of that name. It is started once for each item, so it has to start quickly.

#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <unistd.h>

#include "folder_change.h"

namespace {

void complain(std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(STDERR_FILENO, text.data(), text.size());
        if (count <= 0) {
            return;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

Item itemFor(std::string_view path) {
    Item item;
    item.path = path;
    const std::size_t end = path.find_last_not_of('/');
    const std::string_view whole = path.substr(0, end == std::string_view::npos ? 0 : end + 1);
    const std::size_t slash = whole.rfind('/');
    const std::size_t begin = slash == std::string_view::npos ? 0 : slash + 1;
    item.folder = whole.substr(0, begin);
    item.name = whole.substr(begin);
    if (path.empty()) {
        item.problem = std::strerror(ENOENT);
    } else if (item.name.empty() || item.name == "." || item.name == "..") {
        item.problem = "The path does not end in a name";
    }
    return item;
}

void changeAll(std::vector<Item>& items, bool hidden) {
    std::unordered_map<std::string_view, std::size_t> groupOf;
    std::vector<std::vector<Item*>> groups;
    for (Item& item : items) {
        if (item.problem) {
            continue;
        }
        const auto [entry, isNew] = groupOf.emplace(item.folder, groups.size());
        if (isNew) {
            groups.emplace_back();
        }
        groups[entry->second].push_back(&item);
    }
    for (const std::vector<Item*>& group : groups) {
        changeItems(group, hidden);
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    // A file that gets too large, or an error message that nobody reads, must not end the work on
    // the other items.
    signal(SIGXFSZ, SIG_IGN);
    signal(SIGPIPE, SIG_IGN);

    if (argc < 3 || argv[1][0] == '-') {
        complain("usage: chflags hidden|nohidden file ...\n");
        return 1;
    }
    const std::string_view flag = argv[1];
    if (flag != "hidden" && flag != "nohidden") {
        complain(std::string("chflags: invalid flag: ").append(flag).append("\n"));
        return 1;
    }

    std::vector<Item> items;
    items.reserve(static_cast<std::size_t>(argc - 2));
    for (int i = 2; i < argc; ++i) {
        items.push_back(itemFor(argv[i]));
    }
    changeAll(items, flag == "hidden");

    // Only now that all files are closed: if standard error was closed at the start, one of them
    // may have had its number.
    std::string messages;
    for (const Item& item : items) {
        if (item.problem) {
            messages.append("chflags: ").append(item.path).append(": ").append(item.problem) +=
                '\n';
        }
    }
    complain(messages);
    return messages.empty() ? 0 : 1;
}
