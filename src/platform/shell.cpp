#include "platform/shell.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QStringDecoder>

#include "platform/exceptions.h"
#include "platform/log.h"

// Not every system has this in a header.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace {

// The environment of the command lines: the program's own with the companions first on PATH. Kept
// ready, since a launch or quit pass starts one shell for each item.
std::vector<std::string> environmentEntries;
QString folderOfCompanions;

std::vector<char*> environmentPointers() {
    std::vector<char*> pointers;
    pointers.reserve(environmentEntries.size() + 1);
    for (std::string& entry : environmentEntries) {
        pointers.push_back(entry.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

constexpr std::chrono::milliseconds longestLine{30000};
constexpr std::chrono::milliseconds unnoticed{100};
constexpr std::chrono::milliseconds step{50};

std::chrono::milliseconds patience = longestLine;
std::vector<WhileWaiting*> waiting;
int interruption = -1;

/// Both ends are closed in the programs that are started, unless they are handed over.
class Pipe final {
public:
    Pipe() {
        if (pipe(ends_) != 0) {
            throw LaunchException(std::strerror(errno));
        }
        for (const int end : ends_) {
            fcntl(end, F_SETFD, FD_CLOEXEC);
        }
    }
    ~Pipe() {
        close(ends_[0]);
        closeWriting();
    }
    Q_DISABLE_COPY_MOVE(Pipe)

    int reading() const { return ends_[0]; }
    int writing() const { return ends_[1]; }
    void closeWriting() {
        if (ends_[1] >= 0) {
            close(std::exchange(ends_[1], -1));
        }
    }

private:
    int ends_[2] = {-1, -1};
};

enum class Mode { Run, ReadOnly };

// Starts `/bin/sh -c commandLine` in a process group of its own. The pipe's writing end is its
// standard output where that is wanted; it is held by everything that the line starts, so that the
// pipe ends when the line does.
pid_t spawnShell(const QString& commandLine, Mode mode, Pipe& pipe, bool outputWanted) {
    if (environmentEntries.empty()) {
        Shell::setCompanionsFolder({});
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (outputWanted) {
        posix_spawn_file_actions_adddup2(&actions, pipe.writing(), STDOUT_FILENO);
    } else {
        constexpr int spare = 9;
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, pipe.writing(), spare);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t usual;
    sigemptyset(&usual);
    sigaddset(&usual, SIGPIPE);
    posix_spawnattr_setsigdefault(&attributes, &usual);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF);
    QByteArray text = commandLine.toUtf8();
    std::string shell = "sh";
    std::string option = mode == Mode::Run ? "-c" : "-nc";
    char* arguments[] = {shell.data(), option.data(), text.data(), nullptr};
    std::vector<char*> environment = environmentPointers();
    pid_t child = -1;
    const int error =
        posix_spawn(&child, "/bin/sh", &actions, &attributes, arguments, environment.data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw LaunchException(std::string("/bin/sh: ") + std::strerror(error));
    }
    pipe.closeWriting();
    return child;
}

// Waits for a line: gathers what comes through the pipe until that ends, the time is up or the
// program is asked to end. No event is handled meanwhile.
Shell::Ending gather(const Pipe& pipe, QByteArray& bytes) {
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        pollfd ends[] = {{pipe.reading(), POLLIN, 0}, {interruption, POLLIN, 0}};
        const std::chrono::milliseconds elapsed(timer.elapsed());
        const bool longer = elapsed >= unnoticed;
        poll(ends, 2, static_cast<int>((longer ? step : unnoticed).count()));
        if (ends[0].revents != 0) {
            char buffer[4096];
            const ssize_t count = read(pipe.reading(), buffer, sizeof buffer);
            if (count == 0) {
                return Shell::Ending::ByItself;
            }
            bytes.append(buffer, std::max<ssize_t>(count, 0));
        } else if (elapsed >= patience) {
            return Shell::Ending::TimeUp;
        } else if (ends[1].revents != 0 || (longer && !WhileWaiting::work())) {
            return Shell::Ending::Interrupted;
        }
    }
}

Shell::Ending runLine(const QString& commandLine, Mode mode, bool outputWanted,
                      QByteArray& output) {
    Pipe pipe;
    const pid_t child = spawnShell(commandLine, mode, pipe, outputWanted);
    const Shell::Ending ending = gather(pipe, output);
    if (ending != Shell::Ending::ByItself) {
        // Before the shell is waited for: until then nothing else can have its number.
        kill(-child, SIGKILL);
    }
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return ending;
}

// As with the standard library's own call, a shell that cannot be started is just a command that
// did nothing.
Shell::Ending runQuietly(const QString& commandLine, Mode mode) {
    QByteArray ignored;
    try {
        return runLine(commandLine, mode, false, ignored);
    } catch (const LaunchException& exception) {
        Log::line(QString::fromUtf8(exception.what()));
        return Shell::Ending::ByItself;
    }
}

}  // namespace

void Shell::setCompanionsFolder(const QString& folder) {
    folderOfCompanions = folder;
    environmentEntries.clear();
    std::string path = "/usr/local/bin:/usr/bin:/bin";
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text = *entry;
        if (text.starts_with("PATH=")) {
            path = text.substr(5);
        } else {
            environmentEntries.push_back(text);
        }
    }
    std::string ours = "PATH=";
    if (!folder.isEmpty()) {
        ours.append(folder.toStdString()).append(1, ':');
    }
    environmentEntries.push_back(ours.append(path));
}

QString Shell::companionsFolder() {
    return folderOfCompanions;
}

QString Shell::defaultCompanionsFolder() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../libexec/velmora"));
}

void Shell::setPatience(std::chrono::milliseconds longest) {
    patience = longest;
}

void Shell::setInterruption(int descriptor) {
    interruption = descriptor;
}

bool Shell::isInterrupted() {
    pollfd asked{interruption, POLLIN, 0};
    return poll(&asked, 1, 0) > 0;
}

WhileWaiting::WhileWaiting(std::function<bool()> work) : work_(std::move(work)) {
    waiting.push_back(this);
}

WhileWaiting::~WhileWaiting() {
    std::erase(waiting, this);
}

bool WhileWaiting::work() {
    bool goOn = true;
    for (const WhileWaiting* entry : waiting) {
        goOn = entry->work_() && goOn;
    }
    return goOn;
}

Shell::Ending Shell::run(const QString& commandLine) {
    return runQuietly(commandLine, Mode::Run);
}

Shell::Ending Shell::read(const QString& commandLine) {
    return runQuietly(commandLine, Mode::ReadOnly);
}

std::optional<QString> Shell::output(const QString& commandLine) {
    QByteArray bytes;
    runLine(commandLine, Mode::Run, true, bytes);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (decoder.hasError()) {
        return std::nullopt;
    }
    return text.isNull() ? QString(QLatin1String("")) : text;
}
