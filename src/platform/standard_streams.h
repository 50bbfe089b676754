#pragma once

/// Puts the program's standard streams in order, first of all: one that was closed leads nowhere,
/// so that no file of the program's gets its number, and a reader that goes away ends nobody.
void prepareStandardStreams();
