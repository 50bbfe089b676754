#pragma once

#include <string>
#include <vector>

/// Makes the open windows of those file managers that do not follow their own show-hidden setting
/// stop showing hidden files. Windows, tabs and selections stay. Returns the names of running
/// managers that could not be reached.
std::vector<std::string> resetRunningManagers();
