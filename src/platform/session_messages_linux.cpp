#include "platform/session_messages.h"

#include <poll.h>

#include <algorithm>
#include <vector>

#include <X11/ICE/ICElib.h>

namespace {

// The ICE connections of this process: under X11, Qt has one to the session manager, if any.
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
