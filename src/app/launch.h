#pragma once

class Application;

/// Builds the program on the application object, shows the main window and runs the event loop;
/// returns the exit status. A second start on the same store only brings the first one forward.
int launch(Application& application);
