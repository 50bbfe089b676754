#pragma once

/// Call first in the program. A standard stream that is closed is opened on /dev/null, so that no
/// file of the program's gets its number, and SIGPIPE is ignored, so that a reader of the output
/// that goes away does not end the program.
void prepareStandardStreams();
