#include "platform/session_messages.h"

// macOS asks the application itself at log-out, and waits for its answer.
void SessionMessages::watch() {}
void SessionMessages::handle() {}
