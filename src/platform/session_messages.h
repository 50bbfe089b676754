#pragma once

/// Messages of the desktop's session manager, handled also while the program waits for command
/// lines and handles no event: a log-out must reach it in the middle of a long pass. Does nothing
/// where no session manager is connected over X11. Main thread only.
class SessionMessages {
public:
    /// Call once, before the application object is made: Qt connects to the session manager then.
    static void watch();
    /// Handles the messages that have arrived, without waiting and without handling other events.
    /// The application may emit commitDataRequest() meanwhile, and is sent QEvent::Quit when the
    /// session ends.
    static void handle();
};
