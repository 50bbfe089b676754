#include "platform/shell.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
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

// Starts `/bin/sh -c commandLine`, with `outputEnd` (when not negative) as its standard output.
pid_t spawnShell(const QString& commandLine, int outputEnd) {
    if (environmentEntries.empty()) {
        Shell::setCompanionsFolder({});
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (outputEnd >= 0) {
        posix_spawn_file_actions_adddup2(&actions, outputEnd, STDOUT_FILENO);
    }
    QByteArray text = commandLine.toUtf8();
    std::string shell = "sh";
    std::string option = "-c";
    char* arguments[] = {shell.data(), option.data(), text.data(), nullptr};
    std::vector<char*> environment = environmentPointers();
    pid_t child = -1;
    const int error =
        posix_spawn(&child, "/bin/sh", &actions, nullptr, arguments, environment.data());
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw LaunchException(std::string("/bin/sh: ") + std::strerror(error));
    }
    return child;
}

void waitFor(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
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

void Shell::run(const QString& commandLine) {
    try {
        waitFor(spawnShell(commandLine, -1));
    } catch (const LaunchException& exception) {
        // As with the standard library's own call, a shell that cannot be started is just a
        // command that did nothing.
        Log::line(QString::fromUtf8(exception.what()));
    }
}

std::optional<QString> Shell::output(const QString& commandLine) {
    int ends[2];
    if (pipe(ends) != 0) {
        throw LaunchException(std::strerror(errno));
    }
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    fcntl(ends[1], F_SETFD, FD_CLOEXEC);
    pid_t child = -1;
    try {
        child = spawnShell(commandLine, ends[1]);
    } catch (...) {
        close(ends[0]);
        close(ends[1]);
        throw;
    }
    close(ends[1]);
    QByteArray bytes;
    char buffer[4096];
    for (;;) {
        const ssize_t count = read(ends[0], buffer, sizeof buffer);
        if (count > 0) {
            bytes.append(buffer, count);
        } else if (count == 0 || errno != EINTR) {
            break;
        }
    }
    close(ends[0]);
    waitFor(child);

    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (decoder.hasError()) {
        return std::nullopt;
    }
    return text.isNull() ? QString(QLatin1String("")) : text;
}
