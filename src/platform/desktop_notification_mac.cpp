#include "platform/desktop_notification.h"

// Nothing starts the program for one file from a menu there.
void notifyDesktop(const QString& /*text*/) {}
