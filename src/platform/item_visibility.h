#pragma once

#include <QString>

/// Whether file managers hide the item now, as they themselves find out. An item whose state
/// cannot be looked up counts as visible.
bool isHiddenInFileManagers(const QString& path);

/// A sentence for the user when the item is not in the state that was asked for, with the reason
/// as far as it can be told; empty when it is.
QString outcomeMessage(const QString& path, bool askedVisible);
