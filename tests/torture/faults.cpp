// Stands between a program and the system (LD_PRELOAD), numbers from 1 the calls that concern what
// lies below $BELOW, and spoils those from FIRST to LAST of $FAULT, "KIND FIRST LAST ERROR". The
// kinds: "before" and "after" end the process beside the call, "torn" amid a write; "short" reads
// or writes half, "none" nothing without an error; "error" fails; "name" tells the call's name.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr int here = AT_FDCWD;
std::atomic<int> calls = 0;
bool isOpenBelow[1024] = {};

/// A file without a path, or a path in a folder.
struct Place {
    bool isBelow() const {
        return *path == '/' ? std::string_view(path).starts_with(std::getenv("BELOW"))
                            : file >= 0 && isOpenBelow[file];
    }
    int file;
    const char* path = "";
};

/// `perform` takes how much of the size to read or write.
template <typename Perform>
long pass(const std::string& name, Place place, std::size_t size, Perform perform) {
    char text[8] = "";
    int first = 0;
    int last = 0;
    int error = 0;
    std::sscanf(std::getenv("FAULT"), "%7s %d %d %d", text, &first, &last, &error);
    const int number = place.isBelow() ? ++calls : 0;
    if (number < first || number > last) {
        return perform(size);
    }
    const std::string_view kind = text;
    if (kind == "name") {
        syscall(SYS_write, STDERR_FILENO, (name + '\n').data(), name.size() + 1);
        return perform(size);
    }
    long result = 0;
    if (kind == "short" || kind == "torn") {
        result = perform((size + 1) / 2);
    } else if (kind == "after" || (kind == "error" && name == "close")) {
        result = perform(size);  // what fails to close is closed all the same
    }
    if (kind == "before" || kind == "after" || kind == "torn") {
        std::raise(SIGKILL);
    }
    errno = kind == "error" ? error : 0;
    return kind == "error" ? -1 : result;
}

template <typename... Arguments>
long call(const char* name, Place place, long number, Arguments... arguments) {
    return pass(name, place, 0, [=](std::size_t) { return syscall(number, arguments...); });
}

}  // namespace

// Declared without `...`: the mode arrives in the same register; without O_CREAT it is ignored.
extern "C" int openPath(const char* path, int flags, unsigned mode) __asm__("open");
extern "C" int open64At(const char* path, int flags, unsigned mode) __asm__("open64");
extern "C" int openAt(int folder, const char* path, int flags, unsigned mode) __asm__("openat");

// One short line for each, as far as it goes.
// clang-format off
extern "C" {
int openAt(int folder, const char* path, int flags, unsigned mode) {
    const Place place{folder, path};
    const long file = call("open", place, SYS_openat, folder, path, flags, mode);
    return file < 0 ? -1 : (isOpenBelow[file] = place.isBelow(), file);
}
int openPath(const char* path, int flags, unsigned mode) { return openAt(here, path, flags, mode); }
int open64At(const char* path, int flags, unsigned mode) { return openAt(here, path, flags, mode); }
int mkostemp(char* pattern, int flags) {
    static std::atomic<unsigned> count = getpid();
    std::snprintf(pattern + std::string_view(pattern).size() - 6, 7, "%06u", ++count % 1000000);
    return openAt(here, pattern, O_RDWR | O_CREAT | O_EXCL | flags, 0600);
}
ssize_t read(int file, void* data, size_t size) {
    return pass("read", {file}, size, [=](size_t n) { return syscall(SYS_read, file, data, n); });
}
ssize_t write(int file, const void* data, size_t size) {
    return pass("write", {file}, size, [=](size_t n) { return syscall(SYS_write, file, data, n); });
}
// Does not wait for the disk: only processes are killed here, not the machine.
int fsync(int file) { return call("fsync", {file}, SYS_getpid) < 0 ? -1 : 0; }
int close(int file) { return call("close", {file}, SYS_close, file); }
int flock(int file, int how) noexcept { return call("flock", {file}, SYS_flock, file, how); }
int fchmod(int file, mode_t mode) noexcept { return call("fchmod", {file}, SYS_fchmod, file, mode); }
int chmod(const char* path, mode_t mode) noexcept {
    return call("chmod", {here, path}, SYS_fchmodat, here, path, mode);
}
int mkdir(const char* path, mode_t mode) noexcept {
    return call("mkdir", {here, path}, SYS_mkdirat, here, path, mode);
}
int link(const char* from, const char* to) noexcept {
    return call("link", {here, to}, SYS_linkat, here, from, here, to, 0);
}
int renameat(int from, const char* old, int to, const char* name) noexcept {
    return call("rename", {to, name}, SYS_renameat, from, old, to, name);
}
int rename(const char* old, const char* name) noexcept { return renameat(here, old, here, name); }
int unlinkat(int folder, const char* path, int flags) noexcept {
    return call("unlink", {folder, path}, SYS_unlinkat, folder, path, flags);
}
int unlink(const char* path) noexcept { return unlinkat(here, path, 0); }
ssize_t readlinkat(int folder, const char* path, char* target, size_t size) noexcept {
    return call("readlink", {folder, path}, SYS_readlinkat, folder, path, target, size);
}
int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
    return call("stat", {folder, path}, SYS_newfstatat, folder, path, status, flags);
}
int stat(const char* path, struct stat* status) noexcept { return fstatat(here, path, status, 0); }
int fstat(int file, struct stat* status) noexcept { return fstatat(file, "", status, AT_EMPTY_PATH); }
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    return call("stat", {folder, path}, SYS_statx, folder, path, flags, mask, status);
}
}
// clang-format on
