#pragma once

/// Gives the two switch kinds their accessible side: the checked state tells what the program
/// means by the control, and every accessible action does what a click does. (Qt's own "Toggle"
/// flips the built-in state and never clicks.) Call once, before the first window.
void installAccessibleButtons();
