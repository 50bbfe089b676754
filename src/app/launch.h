#pragma once

class Application;

/// What the first paint needs and what can be made ready on any thread. Left out, it is made when
/// it is needed.
void prepareAhead();

/// Sets the program's style. Call it before the application object is made, which makes the
/// desktop's own otherwise, for nothing.
void chooseStyle();

/// Builds the program on the application object, shows the main window and runs the event loop;
/// returns the exit status. A second start on the same store only brings the first one forward.
int launch(Application& application);
