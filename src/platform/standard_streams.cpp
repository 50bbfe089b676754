#include "platform/standard_streams.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

void prepareStandardStreams() {
    // The lowest free number is given out first.
    int descriptor = open("/dev/null", O_RDWR);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    if (descriptor > STDERR_FILENO) {
        close(descriptor);
    }
    std::signal(SIGPIPE, SIG_IGN);
}
