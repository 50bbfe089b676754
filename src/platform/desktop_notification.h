#pragma once

class QString;

/// Shows the text, which is plain and not markup, as one of the desktop's notifications, under the
/// program's name. Waits up to three seconds for the desktop to take it; does nothing where the
/// desktop has no notifications.
void notifyDesktop(const QString& text);
