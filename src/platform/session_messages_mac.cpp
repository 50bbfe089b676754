#include "platform/session_messages.h"

// The system asks the application itself, and waits for its answer.
void SessionMessages::watch() {}
void SessionMessages::handle() {}
