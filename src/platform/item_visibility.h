#pragma once

#include <QString>

/// Whether a file manager that is opened now would leave the item at `path` out. It is asked of the
/// disk itself, at once; an item that does not exist is as its name was left.
bool isItemHidden(const QString& path);
