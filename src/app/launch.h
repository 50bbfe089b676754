#pragma once

/// The program from its start to its end: makes the application object, shows the main window and
/// runs the event loop; returns the exit status. A second start on the same store only brings the
/// first one forward.
int launch(int argc, char** argv);
