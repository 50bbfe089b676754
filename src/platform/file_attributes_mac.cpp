#include <sys/stat.h>

#include <QFile>

#include "platform/file_attributes.h"

std::optional<FileAttributes> attributesOfItem(const QString& path) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty() || lstat(name.constData(), &status) != 0) {
        return std::nullopt;
    }
    FileAttributes attributes;
    attributes.size = status.st_size;
    attributes.modified = QDateTime::fromSecsSinceEpoch(status.st_mtimespec.tv_sec);
    attributes.created = QDateTime::fromSecsSinceEpoch(status.st_birthtimespec.tv_sec);
    return attributes;
}
