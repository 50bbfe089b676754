#pragma once

/// Installs the accessible interface of RDSwitchButton, RdCustomButton, every other checkable
/// button and tool buttons without a menu: the checked state tells what the program means by the
/// control, and every accessible action but "SetFocus" does what a click does, once its caller has
/// been answered. (Qt's own "Toggle" flips the built-in state and never clicks; its "Press" does
/// not return while the window that the button opens stays.) Call once, after the application
/// object is made and before the first window.
void installAccessibleButtons();
