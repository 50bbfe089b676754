#include "platform/session_messages.h"

#include <poll.h>

#include <algorithm>
#include <vector>

#include <X11/ICE/ICElib.h>

namespace {

// Those of this process. Qt has one with the session manager, where there is one under X11.
std::vector<IceConn> connections;

void connectionChanged(IceConn connection, IcePointer /*data*/, Bool isOpening,
                       IcePointer* /*watchData*/) {
    if (isOpening != 0) {
        connections.push_back(connection);
    } else {
        std::erase(connections, connection);
    }
}

}  // namespace

void SessionMessages::watch() {
    IceAddConnectionWatch(connectionChanged, nullptr);
}

void SessionMessages::handle() {
    for (const IceConn connection : std::vector<IceConn>(connections)) {
        pollfd waiting{IceConnectionNumber(connection), POLLIN, 0};
        while (poll(&waiting, 1, 0) > 0 && waiting.revents == POLLIN &&
               IceProcessMessages(connection, nullptr, nullptr) == IceProcessMessagesSuccess &&
               std::find(connections.begin(), connections.end(), connection) != connections.end()) {
        }
    }
}
