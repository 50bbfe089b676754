#pragma once

/// The program from its start to its end; returns the exit status. Without options it shows the
/// main window and runs the event loop, or, while another process runs on the same store, brings
/// that one's window forward and gives it the files of the command line. `--hide`, `--show`,
/// `--show-all`, `--help` and `--version` need no window. A wrong option ends it with status 2.
int launch(int argc, char** argv);
