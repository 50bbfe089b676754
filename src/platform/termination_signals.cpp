#include "platform/termination_signals.h"

#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace {

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP};
int ends[2] = {-1, -1};

extern "C" void reportSignal(int /*number*/) {
    TerminationSignals::request();
}

}  // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
    if (pipe(ends) != 0) {
        return;
    }
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    fcntl(ends[1], F_SETFD, FD_CLOEXEC);
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        // What is in the pipe stays there: the program has been asked to end.
        notifier->setEnabled(false);
        emit terminationRequested();
    });
    struct sigaction action {};
    action.sa_handler = reportSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : handledSignals) {
        sigaction(number, &action, nullptr);
    }
}

void TerminationSignals::request() {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(ends[1], &byte, 1);
}

int TerminationSignals::descriptor() const {
    return ends[0];
}

TerminationSignals::~TerminationSignals() {
    for (const int number : handledSignals) {
        std::signal(number, SIG_DFL);
    }
    for (int& end : ends) {
        close(std::exchange(end, -1));
    }
}
