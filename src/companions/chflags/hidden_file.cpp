#include "hidden_file.h"

#include <cerrno>
#include <climits>
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <time.h>

namespace {

constexpr char kCreatedMark[] = "user.velmora.created";
constexpr char kTemporaryMark[] = "user.velmora.temporary";
constexpr char kOrdinaryName[] = ".hidden";
constexpr unsigned kLockPatienceSeconds = 2;
constexpr int kMostLinks = 40;

int writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(file, text.data(), text.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return count < 0 ? errno : ENOSPC;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

// Each may fail where the file system or the user's rights don't allow it; the list counts more.
void copyExtendedAttributes(int from, int to) {
    const ssize_t size = flistxattr(from, nullptr, 0);
    if (size <= 0) {
        return;
    }
    std::string names(static_cast<std::size_t>(size), '\0');
    const ssize_t listed = flistxattr(from, names.data(), names.size());
    names.resize(listed > 0 ? static_cast<std::size_t>(listed) : 0);
    std::string value;
    for (std::size_t begin = 0; begin < names.size(); begin = names.find('\0', begin) + 1) {
        const char* name = names.data() + begin;
        if (std::string_view(name) == kTemporaryMark) {
            continue;
        }
        const ssize_t length = fgetxattr(from, name, nullptr, 0);
        if (length < 0) {
            continue;
        }
        value.resize(static_cast<std::size_t>(length));
        if (fgetxattr(from, name, value.data(), value.size()) == length) {
            fsetxattr(to, name, value.data(), value.size(), 0);
        }
    }
}

void copyOwnerAndMode(const struct stat& from, int to, const struct stat& now) {
    const bool sameOwner = (from.st_uid == now.st_uid && from.st_gid == now.st_gid) ||
                           fchown(to, from.st_uid, from.st_gid) == 0;
    if (!sameOwner) {
        static_cast<void>(fchown(to, static_cast<uid_t>(-1), from.st_gid) == 0);
    }
    const mode_t mode = from.st_mode & (sameOwner ? 07777 : 0777);
    if (mode != (now.st_mode & 07777)) {
        fchmod(to, mode);
    }
}

bool isLater(const timespec& a, const timespec& b) {
    return a.tv_sec != b.tv_sec ? a.tv_sec > b.tv_sec : a.tv_nsec > b.tv_nsec;
}

timespec plusMilliseconds(timespec time, long milliseconds) {
    time.tv_sec += milliseconds / 1000;
    time.tv_nsec += milliseconds % 1000 * 1'000'000;
    if (time.tv_nsec >= 1'000'000'000) {
        ++time.tv_sec;
        time.tv_nsec -= 1'000'000'000;
    }
    return time;
}

// A reader that keeps the file in memory reads it again only when it is newer, some by whole
// milliseconds. Clocks tick slower than that, clocks are set back, and file systems round: to
// whole seconds the small ones, to even ones FAT.
void makeLater(int file, struct stat status, const timespec& old) {
    for (const long step : {1L, 1000L, 2000L}) {
        const timespec wanted = plusMilliseconds(old, step);
        if (isLater(status.st_mtim, old) && !isLater(plusMilliseconds(old, 1), status.st_mtim)) {
            return;
        }
        const timespec times[] = {{0, UTIME_OMIT}, wanted};
        if (futimens(file, times) != 0 || fstat(file, &status) != 0) {
            return;
        }
    }
}

// The kernel keeps users from following links that others laid into a folder open to all, but it
// only does so when it follows them itself.
bool mayFollow(int folder, const struct stat& link) {
    struct stat status {};
    if (fstat(folder, &status) != 0) {
        return false;
    }
    const bool openToAll = (status.st_mode & S_ISVTX) && (status.st_mode & S_IWOTH);
    return !openToAll || link.st_uid == geteuid() || link.st_uid == status.st_uid;
}

}  // namespace

int HiddenFile::open(int folder) {
    folder_ = folder;
    if (const int error = followLinks()) {
        return error;
    }
    if (const int error = lock()) {
        return error;
    }
    return read();
}

int HiddenFile::followLinks() {
    char target[PATH_MAX];
    for (int links = 0;; ++links) {
        const ssize_t length = readlinkat(folder_, name_.c_str(), target, sizeof target);
        if (length < 0) {
            const bool isNoLink = errno == EINVAL || errno == ENOENT;
            // A folder may come from a stranger, who must not choose which file is written: a link
            // leads to another such list, or nowhere.
            return !isNoLink ? errno : linked_ && name_ != kOrdinaryName ? ELOOP : 0;
        }
        if (links == kMostLinks) {
            return ELOOP;
        }
        linked_ = true;
        if (length == sizeof target) {
            return ENAMETOOLONG;
        }
        struct stat link {};
        if (fstatat(folder_, name_.c_str(), &link, AT_SYMLINK_NOFOLLOW) != 0) {
            return errno;
        }
        if (!mayFollow(folder_, link)) {
            return EACCES;
        }

        const std::string_view path(target, static_cast<std::size_t>(length));
        const std::size_t slash = path.rfind('/');
        name_ = path.substr(slash == std::string_view::npos ? 0 : slash + 1);
        if (name_.empty()) {
            return EISDIR;
        }
        if (slash == std::string_view::npos) {
            continue;
        }
        const std::string parent(path.substr(0, slash + 1));
        FileDescriptor next(openat(folder_, parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!next) {
            return errno;
        }
        linkedFolder_ = std::move(next);
        folder_ = linkedFolder_.get();
    }
}

int HiddenFile::lock() {
    locked_ = flock(folder_, LOCK_EX | LOCK_NB) == 0;
    if (locked_ || errno != EWOULDBLOCK) {
        return 0;  // a file system without locks must do without
    }
    // Another process has the lock. One that never gives it back must not be waited for without
    // end.
    struct sigaction interrupt {};
    interrupt.sa_handler = [](int) {};
    sigaction(SIGALRM, &interrupt, nullptr);
    alarm(kLockPatienceSeconds);
    locked_ = flock(folder_, LOCK_EX) == 0;
    const int error = locked_ ? 0 : errno;
    alarm(0);
    return error == EINTR ? EWOULDBLOCK : error;
}

int HiddenFile::read() {
    // Not blocking: the name may stand for a pipe.
    file_ = FileDescriptor(
        openat(folder_, name_.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file_) {
        const int error = linked_ ? ELOOP : 0;  // nothing is made through a link
        return errno == ENOENT ? error : errno;
    }
    if (fstat(file_.get(), &status_) != 0) {
        return errno;
    }
    if (!S_ISREG(status_.st_mode)) {
        return EISDIR;
    }
    if (linked_ && status_.st_uid != geteuid()) {
        return ELOOP;
    }
    return lines_.read(file_.get(), static_cast<std::size_t>(status_.st_size));
}

int HiddenFile::save() {
    if (lines_.text().empty() && !linked_ && mayRemove()) {
        return unlinkat(folder_, name_.c_str(), 0) == 0 ? 0 : errno;
    }

    std::string temporary;
    FileDescriptor file = createTemporary(temporary);
    if (!file) {
        return errno;
    }
    // The mark is removed only after the rename, so that what a killed run leaves behind has it.
    const FileDescriptor marked(dup(file.get()));
    int error = fillTemporary(file.get());
    if (error == 0) {
        error = file.close();
    }
    if (error == 0 && renameat(folder_, temporary.c_str(), folder_, name_.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        unlinkat(folder_, temporary.c_str(), 0);
    } else {
        fremovexattr(marked.get(), kTemporaryMark);
    }
    return error;
}

// An empty file that this command did not create stays. Where files cannot be marked, which would
// tell, it is removed.
bool HiddenFile::mayRemove() const {
    return fgetxattr(file_.get(), kCreatedMark, nullptr, 0) >= 0 || errno == ENOTSUP;
}

FileDescriptor HiddenFile::createTemporary(std::string& name) const {
    const mode_t mode = file_ ? status_.st_mode & 0777 : 0666;
    const auto create = [&] {
        return FileDescriptor(openat(folder_, name.c_str(),
                                     O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    };
    // Under the lock one name is enough, and what a killed run left behind goes away by itself.
    name = ".hidden.velmora";
    FileDescriptor file = locked_ ? create() : FileDescriptor();
    if (!file && locked_ && errno != EEXIST) {
        return file;
    }
    if (!file && locked_ && isLeftBehind(name)) {
        unlinkat(folder_, name.c_str(), 0);
        file = create();
    }
    if (!file) {
        name.append(".").append(std::to_string(getpid()));
        file = create();
    }
    if (file) {
        fsetxattr(file.get(), kTemporaryMark, "", 0, 0);
    }
    return file;
}

// A file of that name may be the user's own, unless it has the mark, or nothing in it: that is how
// it is made.
bool HiddenFile::isLeftBehind(const std::string& name) const {
    const FileDescriptor file(
        openat(folder_, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    return file && fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
           (status.st_size == 0 || fgetxattr(file.get(), kTemporaryMark, nullptr, 0) >= 0);
}

int HiddenFile::fillTemporary(int file) const {
    if (const int error = writeAll(file, lines_.text())) {
        return error;
    }
    if (!file_) {
        fsetxattr(file, kCreatedMark, "", 0, 0);
        return 0;
    }
    struct stat now {};
    if (fstat(file, &now) != 0) {
        return errno;
    }
    copyOwnerAndMode(status_, file, now);
    copyExtendedAttributes(file_.get(), file);
    makeLater(file, now, status_.st_mtim);
    return 0;
}
