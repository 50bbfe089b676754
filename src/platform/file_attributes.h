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
/// Whether a file or folder exists at `path` (links are followed; a null path is nowhere).
bool fileExists(const QString& path);
