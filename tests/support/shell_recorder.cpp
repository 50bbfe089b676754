// Loaded into the shell by tests. All by which the shell could do more than run chflags once is
// noted in the file that SHELL_RECORD names, and refused: let through by mistake, it would do no
// harm.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

int openFile(const char* path, int flags) {
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, 0600));
}

int refuse(const char* call, const char* path = "") {
    const int record = openFile(std::getenv("SHELL_RECORD"), O_WRONLY | O_CREAT | O_APPEND);
    dprintf(record, "%s %s\n", call, path);
    close(record);
    errno = EPERM;
    return -1;
}

}  // namespace

extern "C" {

int execve(const char* path, char* const arguments[], char* const[]) noexcept {
    if (!std::string_view(path).ends_with("/chflags")) {
        return refuse("execve", path);
    }
    char* const nothing[] = {nullptr};  // or it would load this as well
    return static_cast<int>(syscall(SYS_execve, path, arguments, nothing));
}
pid_t fork() noexcept {
    return refuse("fork");
}
pid_t vfork() noexcept {  // the shell's way to a program alone
    static bool used = false;
    return std::exchange(used, true) ? refuse("fork") : _Fork();
}
int kill(pid_t, int) noexcept {
    return refuse("kill");
}
int open64(const char* path, int flags, ...) {
    // Libraries that look users up open files with O_CLOEXEC; the shell opens those for a
    // redirection without it.
    return (flags & O_CLOEXEC) != 0 ? openFile(path, flags) : refuse("open", path);
}
}
