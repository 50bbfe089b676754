#include "folder_change.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "fat_attributes.h"
#include "file_descriptor.h"
#include "hidden_file.h"

namespace {

struct Found {
    Item* item;
    mode_t mode;
};

// A path may be longer than the system takes at once.
FileDescriptor openFolder(std::string_view path) {
    FileDescriptor folder;
    std::string part;
    do {
        std::size_t length = path.size();
        if (length >= PATH_MAX) {
            length = path.rfind('/', PATH_MAX - 2) + 1;
            if (length == 0) {
                errno = ENAMETOOLONG;
                return {};
            }
        }
        part = length == 0 ? "." : path.substr(0, length);
        path.remove_prefix(length);
        path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
        folder = FileDescriptor(openat(folder ? folder.get() : AT_FDCWD, part.c_str(),
                                       O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    } while (folder && !path.empty());
    return folder;
}

std::vector<Found> findItems(int folder, std::span<Item* const> items) {
    std::vector<Found> found;
    found.reserve(items.size());
    for (Item* item : items) {
        struct stat status {};
        if (fstatat(folder, item->name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            item->problem = std::strerror(errno);
        } else if (item->name.find('\n') != std::string::npos) {
            item->problem = "Names with a line break cannot be hidden or shown";
        } else {
            found.push_back({item, status.st_mode});
        }
    }
    return found;
}

// Sets the mode that the item has already: file managers look at it again on that event. Left out
// for a link, which has no mode of its own: what it points to is not the item.
void raiseAttributeEvent(int folder, const char* name) {
    struct stat status {};
    if (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || S_ISLNK(status.st_mode)) {
        return;
    }
    const mode_t mode = status.st_mode & 07777;
    // One step that cannot be tricked into following a link; not in the C library everywhere.
    constexpr long kFchmodat2 = 452;
    if (syscall(kFchmodat2, folder, name, mode, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOSYS) {
        fchmodat(folder, name, mode, AT_SYMLINK_NOFOLLOW);
    }
}

const char* problemOfList(int error) {
    switch (error) {
        case EISDIR:
            return "The .hidden beside it is not a file";
        case ELOOP:
            return "The .hidden beside it is a link that is not followed";
        default:
            return std::strerror(error);
    }
}

}  // namespace

void changeItems(std::span<Item* const> items, bool hidden) {
    const FileDescriptor folder = openFolder(items.front()->folder);
    if (!folder) {
        for (Item* item : items) {
            item->problem = std::strerror(errno);
        }
        return;
    }
    const std::vector<Found> found = findItems(folder.get(), items);
    if (found.empty()) {
        return;
    }

    HiddenFile file;
    if (const int error = file.open(folder.get())) {
        for (const Found& each : found) {
            each.item->problem = problemOfList(error);
        }
        return;
    }
    std::vector<std::string_view> names;
    names.reserve(found.size());
    for (const Found& each : found) {
        names.push_back(each.item->name);
    }
    const std::vector<bool> changed = hidden ? file.add(names) : file.remove(names);
    const bool anyChanged = std::find(changed.begin(), changed.end(), true) != changed.end();
    const int error = anyChanged ? file.save() : 0;

    const FatAttributes attributes(folder.get());
    for (std::size_t i = 0; i < found.size(); ++i) {
        Item& item = *found[i].item;
        if (changed[i] && error != 0) {
            item.problem = problemOfList(error);
            continue;
        }
        attributes.setHidden(item.name.c_str(), found[i].mode, hidden);
        if (changed[i]) {
            raiseAttributeEvent(folder.get(), item.name.c_str());
        }
    }
}
