#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>

#include "platform/file_attributes.h"

std::optional<FileAttributes> attributesOfItem(const QString& path) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty() || lstat(name.constData(), &status) != 0) {
        return std::nullopt;
    }
    FileAttributes attributes;
    attributes.size = status.st_size;
    attributes.modified = QDateTime::fromSecsSinceEpoch(status.st_mtime);
    // Qt tells only of what a link points to. A link itself is as it was made.
    attributes.created = S_ISLNK(status.st_mode) ? attributes.modified : QFileInfo(path).birthTime();
    return attributes;
}
