#pragma once

/// Gives the two switch kinds, every other checkable button and tool buttons their
/// accessible side: the checked state tells what the program means by the control, and every
/// accessible action does what a click does, once its caller has been answered. (Qt's own "Toggle"
/// flips the built-in state and never clicks; its "Press" does not answer while the window that
/// the button opens stays.) Call once, before the first window.
void installAccessibleButtons();
