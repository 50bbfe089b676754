#pragma once

#include <optional>

#include <QDateTime>
#include <QString>

/// What the file system tells of one item itself (of a symbolic link, not of what it points to).
struct FileAttributes {
    qint64 size = 0;    ///< bytes; of a folder, its directory entry's
    QDateTime created;  ///< invalid where the file system keeps none
    QDateTime modified;
};

/// No value when there is nothing at `path` or it may not be looked at.
std::optional<FileAttributes> attributesOfItem(const QString& path);
/// Whether the path says where an item is: from the root on, and without a zero character, at which
/// the system would take it to end.
bool isAbsolutePath(const QString& path);
/// Whether a file or folder exists at `path` (links are followed; a path that is not absolute
/// is nowhere).
bool fileExists(const QString& path);
/// Makes a folder for its owner alone, with those above it, where it is missing. Null on success,
/// or else the system's reason.
QString makePrivateFolder(const QString& folder);
/// Takes the rights of all but the owner away from a file or folder that the user owns; leaves any
/// other as it is.
void makePrivate(const QString& path);
