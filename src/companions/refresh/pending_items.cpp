#include "pending_items.h"

#include <array>
#include <chrono>
#include <csignal>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

#include "managers/wait.h"

namespace {

using namespace std::chrono_literals;

/// Longer than a telling may take: the holder ends after the one that it is at.
constexpr auto patience = 6s;

struct flock wholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

/// Uses record locks, since the system tells which process holds one.
bool takeFromHolder(int descriptor) {
    auto lock = wholeFile();
    if (fcntl(descriptor, F_SETLK, &lock) == 0) {
        return true;
    }
    if (fcntl(descriptor, F_GETLK, &lock) == 0 && lock.l_type == F_WRLCK && lock.l_pid > 1) {
        kill(lock.l_pid, SIGTERM);
    }
    return false;
}

}  // namespace

PendingItems::PendingItems() {
    const auto file = std::string(g_get_user_runtime_dir()) + "/velmora-refresh";
    descriptor_ = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor_ >= 0 && !waitFor(patience, [this] { return takeFromHolder(descriptor_); })) {
        close(descriptor_);
        descriptor_ = -1;
    }
}

PendingItems::~PendingItems() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

Items PendingItems::read() const {
    Items items;
    std::string item;
    std::array<char, 65536> part{};
    ssize_t count = 0;
    for (off_t at = 0; (count = pread(descriptor_, part.data(), part.size(), at)) > 0;
         at += count) {
        for (const char byte : std::string_view(part.data(), static_cast<size_t>(count))) {
            if (byte != '\0') {
                item += byte;
            } else {
                items.insert(std::exchange(item, {}));
            }
        }
    }
    return items;
}

void PendingItems::write(const Items& items) const {
    std::string content;
    for (const auto& item : items) {
        content.append(item).push_back('\0');
    }
    if (ftruncate(descriptor_, 0) == 0) {
        // On a full disk the last item may be cut short; it is then not told again.
        [[maybe_unused]] const auto ignored =
            pwrite(descriptor_, content.data(), content.size(), 0);
    }
}
