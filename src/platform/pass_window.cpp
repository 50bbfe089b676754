#include "platform/pass_window.h"

#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

// Not every system has this in a header.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace {

constexpr qint64 shortPass = 500;  // milliseconds
constexpr qint64 step = 100;

// Reaps the process later: it takes a moment to close its window, which nobody waits for.
void forget(pid_t process) {
    constexpr int moment = 1000;  // milliseconds
    if (QCoreApplication* application = QCoreApplication::instance()) {
        QTimer::singleShot(moment, application, [process] { waitpid(process, nullptr, WNOHANG); });
    }
}

}  // namespace

PassWindow::PassWindow(const QString& program, Pass pass, qsizetype total, quintptr above)
    : program_(program), pass_(pass), total_(total), above_(above) {
    sinceStart_.start();
    sinceWork_.start();
}

PassWindow::~PassWindow() {
    if (socket_ >= 0) {
        close(socket_);
    }
    if (process_ >= 0) {
        forget(process_);
    }
}

bool PassWindow::next(qsizetype done, const QString& name) {
    done_ = done;
    name_ = name;
    if (sinceWork_.elapsed() >= step) {
        sinceWork_.start();
        WhileWaiting::work();
    }
    return !stopped_;
}

bool PassWindow::follow() {
    if (!started_ && sinceStart_.elapsed() >= shortPass) {
        started_ = true;
        start();
    }
    if (socket_ >= 0) {
        char answer = 0;
        stopped_ = stopped_ || recv(socket_, &answer, 1, MSG_DONTWAIT) == 1;
        if (std::exchange(told_, done_) != done_) {
            QByteArray record = QByteArray::number(done_) + '\t' + name_.toUtf8();
            record.replace('\0', ' ');
            record.append('\0');
            // A record that does not fit the buffer may be lost: the next one replaces it.
            send(socket_, record.constData(), static_cast<size_t>(record.size()),
                 MSG_DONTWAIT | MSG_NOSIGNAL);
        }
    }
    return !stopped_;
}

void PassWindow::start() {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) {
        return;
    }
    for (const int end : ends) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDIN_FILENO);
    QByteArray program = QFile::encodeName(program_);
    QByteArray pass = pass_ == Pass::Launch ? "launch" : "quit";
    QByteArray total = QByteArray::number(total_);
    QByteArray above = QByteArray::number(quint64(above_));
    char* arguments[] = {program.data(), pass.data(), total.data(), above.data(), nullptr};
    pid_t process = -1;
    const int error =
        posix_spawn(&process, program.constData(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (error != 0) {
        close(ends[0]);
        return;
    }
    process_ = process;
    socket_ = ends[0];
}
