#pragma once

#include <optional>

#include <QString>

#include "state/json_codec.h"

/// The file that the name leads to: a symbolic link is followed, also to a file that does not
/// exist yet, so that a save replaces the file and keeps the link.
QString linkTarget(const QString& file);

/// What a file holds, or why nothing could be had from it.
struct StoreReading {
    enum class State { Missing, Good, Damaged, NotAFile };
    State state = State::Missing;
    StoreContents contents;
};
StoreReading readStore(const QString& file);

/// Makes a second name for the file, its own with the time added, that keeps the content through
/// later saves. Never replaces anything. The new name, or no value when that cannot be done.
std::optional<QString> setAside(const QString& file);

/// Removes what saves that were killed have left beside the file. Spares those in progress.
void removeStaleTemporaries(const QString& file);

/// Replaces the file as a whole, also across a crash: it holds the old or the new contents at any
/// moment. Makes the folder when it is missing. Null on success, or else the system's reason; the
/// old file is then untouched.
QString replaceStore(const QString& file, const StoreContents& contents);

/// Makes the file's folder for its owner alone if it is missing. False when that is impossible.
bool makeFolderOf(const QString& file);
