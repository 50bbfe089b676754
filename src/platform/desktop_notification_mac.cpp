#include "platform/desktop_notification.h"

// No menu of macOS starts the program without a terminal to read its messages.
void notifyDesktop(const QString& /*text*/) {}
