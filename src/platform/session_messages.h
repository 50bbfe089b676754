#pragma once

/// What the desktop's session manager says, heard also while the program waits for command lines
/// and handles no event: a log-out must reach it in the middle of a long pass.
class SessionMessages {
public:
    /// Once, before the application object is made.
    static void watch();
    /// Handles what has come, nothing else. The application may emit commitDataRequest() meanwhile,
    /// and is sent QEvent::Quit when the session ends.
    static void handle();
};
