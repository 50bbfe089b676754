#pragma once

#include <optional>

#include <QString>

#include "state/json_codec.h"

/// The file that the name leads to: a symbolic link is followed, also to a file that does not
/// exist yet, so that a save replaces the file and keeps the link.
QString linkTarget(const QString& file);

struct StoreReading {
    /// Damaged is whatever is there and cannot be used: no JSON object, no file. Out of reach is
    /// what may be there and cannot be looked at now: no right to it, a disk that is not there yet.
    enum class State { Missing, Good, Damaged, OutOfReach };
    State state = State::Missing;
    StoreContents contents;
    QString reason = {};  ///< the system's, for what is out of reach
};
/// Reads and parses the file. Changes nothing, and does not wait for a pipe of that name.
StoreReading readStore(const QString& file);

/// Makes a second name for the file, its own with the time added, that keeps the content through
/// later saves. Never replaces anything. The new name, or no value when that cannot be done, as
/// with everything that is no ordinary file.
std::optional<QString> setAside(const QString& file);

/// Removes what saves that were killed have left beside the file. Spares those in progress.
void removeStaleTemporaries(const QString& file);

/// Replaces the file as a whole, also across a crash: it holds the old or the new contents at any
/// moment. Makes the folder when it is missing. Null on success, or else the system's reason; the
/// old file is then untouched.
QString replaceStore(const QString& file, const StoreContents& contents);

/// Makes the file's folder for its owner alone if it is missing. Null on success, or else the
/// system's reason.
QString makeFolderOf(const QString& file);
