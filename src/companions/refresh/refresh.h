#pragma once

#include <string>
#include <vector>

#include "pending_items.h"

/// A running file manager whose windows could not be told, and what a user presses there.
struct Unreached {
    std::string manager;
    std::string keys;
};

/// Makes the open windows of the desktop's file managers that show the folders of these items
/// look again at what is hidden there. Selections, scroll positions and the keyboard focus stay;
/// of the items nothing changes but the time of their last change of attributes.
/// With `onlyWrong`, windows that are seen to list the items as they should are left alone.
std::vector<Unreached> refreshWindows(const Items& items, bool onlyWrong);
